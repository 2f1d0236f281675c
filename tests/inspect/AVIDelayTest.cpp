#include "inspect/clsAVIDelay.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>

using namespace zentaro;

namespace {

constexpr int kFailed = -1000;

const std::string kMp3Frame = "\xFF\xFB\x90\x64";
const std::string kAc3Frame = "\x0B\x77\x12\x34";

/// Little-endian bytes of a number.
std::string Bytes(std::int64_t value, int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

std::string Zeros(std::size_t count)
{
    return std::string(count, '\0');
}

/// A chunk; `size` only when it is to lie.
std::string Chunk(const std::string& id, const std::string& payload, std::optional<std::int64_t> size = {})
{
    return id + Bytes(size.value_or(std::ssize(payload)), 4) + payload + Zeros(payload.size() % 2);
}

std::string List(const std::string& type, const std::string& content)
{
    return Chunk("LIST", type + content);
}

struct AudioStream {
    std::int32_t formatTag = 85;
    std::int32_t averageBytesPerSecond = 16'000;
    std::int32_t scale = 1;
    std::int32_t rate = 1;
    std::int32_t start = 0;
};

std::string Stream(const std::string& type, const std::string& format, const AudioStream& stream = {})
{
    const auto numbers = Bytes(stream.scale, 4) + Bytes(stream.rate, 4) + Bytes(stream.start, 4);
    return List("strl", Chunk("strh", type + Zeros(16) + numbers + Zeros(24)) + Chunk("strf", format));
}

std::string Sound(const AudioStream& stream = {})
{
    return Stream("auds",
        Bytes(stream.formatTag, 2) + Bytes(2, 2) + Bytes(48'000, 4) + Bytes(stream.averageBytesPerSecond, 4)
            + Bytes(1, 2) + Bytes(0, 2),
        stream);
}

std::string File(const std::string& content, const std::string& form = "AVI ")
{
    return Chunk("RIFF", form + List("hdrl", Chunk("avih", Zeros(56))) + content);
}

/// The delays of a file's streams in one text; "failed" when it was refused.
std::string Delays(const std::string& bytes)
{
    std::istringstream file(bytes);
    clsAVIDelay avi;
    if (!avi.OpenStream(file))
        return "failed";
    std::string text;
    for (std::int32_t i = 0; i < avi.StreamCount(); ++i)
        text += (i ? " " : "") + std::to_string(avi.StreamDelay(i)) + (avi.StreamIsAudio(i) ? "" : " video");
    return text;
}

int DelayOf(const AudioStream& stream, const std::string& movie)
{
    const auto text = Delays(File(Sound(stream) + movie + Chunk("JUNK", Zeros(8))));
    return text == "failed" ? kFailed : std::stoi(text);
}

} // namespace

TEST(AVIDelay, a_cut_first_frame_delays_the_stream_and_each_format_has_its_own_start)
{
    const auto movie = List("movi", Chunk("00dc", Zeros(99)) + Chunk("01wb", Zeros(417) + kMp3Frame));
    const auto file = File(Stream("vids", Zeros(40)) + Sound() + movie + Chunk("idx1", Zeros(16)));
    EXPECT_EQ(Delays(file), "-1 video 26"); // 417 bytes last 26.06 ms
    EXPECT_EQ(clsAVIDelay().StreamDelay(-1), -1);

    EXPECT_EQ(DelayOf({ .formatTag = 80 }, Chunk("00wb", Zeros(16) + kMp3Frame)), 1);
    EXPECT_EQ(DelayOf({ .formatTag = 0x2000 }, Chunk("00wb", kMp3Frame + Zeros(12) + kAc3Frame)), 1);
    EXPECT_EQ(DelayOf({}, Chunk("00wb", kAc3Frame + Zeros(12) + kMp3Frame)), 1);
    EXPECT_EQ(DelayOf({}, Chunk("00wb", Zeros(16) + "\xFF\xFA\x90\x64")), -1) << "a frame with a CRC";
    EXPECT_EQ(DelayOf({}, Chunk("00wb", "\xFF\xFF\xFB")), 0);
    EXPECT_EQ(DelayOf({ .formatTag = 1 }, Chunk("00wb", kMp3Frame)), -1);
}

TEST(AVIDelay, a_search_goes_on_through_the_chunks_but_not_across_their_borders)
{
    // The padding byte of an odd chunk counts as data.
    EXPECT_EQ(
        DelayOf({}, Chunk("00wb", Zeros(15)) + Chunk("00wb", Zeros(32) + kMp3Frame) + Chunk("00wb", kMp3Frame)), 3);
    EXPECT_EQ(DelayOf({}, Chunk("00wb", Zeros(15) + "\xFF") + Chunk("00wb", "\xFB\x90")), -1);
    // Longer than the reader's window, with a frame that starts at its last byte.
    for (std::size_t size = 32'540; size < 32'780; ++size) {
        const auto delay = DelayOf({ .averageBytesPerSecond = 1000 }, Chunk("00wb", Zeros(size) + kMp3Frame));
        ASSERT_EQ(delay, static_cast<int>(size));
    }
}

TEST(AVIDelay, the_start_time_is_rate_over_scale_a_missing_number_is_1_and_halves_go_to_the_even_neighbour)
{
    EXPECT_EQ(DelayOf({ .scale = 4, .rate = 1, .start = 2 }, Chunk("00wb", Zeros(16) + kMp3Frame)), 501);
    EXPECT_EQ(DelayOf({ .formatTag = 1, .scale = 4, .start = 2 }, Chunk("00wb", Zeros(4))), 499);
    EXPECT_EQ(DelayOf({ .start = 2 }, Chunk("00wb", "")), 1999);
    EXPECT_EQ(DelayOf({ .averageBytesPerSecond = 0 }, Chunk("00wb", Zeros(2) + kMp3Frame)), 2000);
    EXPECT_EQ(DelayOf({ .rate = 0, .start = 3 }, Chunk("00wb", kMp3Frame)), 3000);
    for (const auto& [bytes, delay] : { std::pair(8, 0), std::pair(24, 2), std::pair(40, 2) }) // 0.5, 1.5, 2.5 ms
        EXPECT_EQ(DelayOf({}, Chunk("00wb", Zeros(static_cast<std::size_t>(bytes)) + kMp3Frame)), delay);
}

TEST(AVIDelay, a_stream_is_given_up_after_a_million_and_a_half_bytes_and_the_file_a_million_later)
{
    const auto block = Chunk("00wb", Zeros(500'000));
    EXPECT_EQ(DelayOf({}, block + block + block), -1);
    EXPECT_EQ(DelayOf({}, block + block + block + Chunk("00wb", kMp3Frame)), -2);
    // What is found in the chunk that passes the limit is given up with it.
    EXPECT_EQ(DelayOf({}, Chunk("00wb", kMp3Frame + Zeros(1'500'000))), -2);
    EXPECT_EQ(DelayOf({}, Chunk("00wb", Zeros(800'000) + kMp3Frame)), -2);

    // Chunks that begin behind the first two and a half million bytes of the file are not looked at.
    const auto found = [](std::size_t fill) {
        const auto junk = Chunk("JUNK", Zeros(fill - File(Sound()).size() - 8)) + Chunk("ISFT", "");
        return Delays(File(Sound() + junk + Chunk("00wb", kMp3Frame) + Chunk("JUNK", "tail")));
    };
    EXPECT_EQ(found(2'499'992), "0"); // the empty chunk's header ends exactly at the limit
    EXPECT_EQ(found(2'499'994), "-1");
}

TEST(AVIDelay, other_files_and_cut_headers_are_refused)
{
    const auto avi = File(Sound());
    for (const auto& other : { File(Sound(), "WAVE"), std::string(), std::string("RIFF"), "RIFX" + avi.substr(4) })
        EXPECT_EQ(Delays(other), "failed") << other.substr(0, 12);
    EXPECT_EQ(Delays(avi.substr(0, 12)), "");
    EXPECT_EQ(Delays(avi.substr(0, avi.size() - 24)), "-1") << "cut between chunks";
    EXPECT_EQ(Delays(avi.substr(0, avi.size() - 4)), "failed") << "cut within a format";
    EXPECT_EQ(Delays(File(Sound() + Chunk("00wb", Zeros(64), 66))), "failed");
    EXPECT_EQ(Delays(File(Sound() + Chunk("00dc", Zeros(64), 9999))), "-1");
}

TEST(AVIDelay, what_has_no_meaning_is_refused)
{
    const auto data = [](const std::string& id) { return Chunk(id, kMp3Frame); };
    for (const auto* const id : { "0awb", " 0wb", "01wb" })
        EXPECT_EQ(DelayOf({}, data(id)), kFailed) << id;
    EXPECT_EQ(DelayOf({ .scale = 0 }, data("00wb")), kFailed);
    EXPECT_EQ(DelayOf({ .rate = 2'000'000'000, .start = 2 }, data("00wb")), kFailed) << "beyond 32 bits";
    EXPECT_EQ(Delays(File(Chunk("strf", Zeros(16)) + Zeros(8))), "failed") << "a format of no stream";
    EXPECT_EQ(DelayOf({ .scale = 0 }, ""), -1) << "a scale that nobody divides by";
}

TEST(AVIDelay, sizes_that_lead_nowhere_new_end_the_walk)
{
    const auto audio = Chunk("00wb", Zeros(32) + kMp3Frame);
    for (const std::int64_t size : std::initializer_list<std::int64_t>{ -8, -9, -100, 2'147'483'647, 1'999'999'999 })
        EXPECT_EQ(DelayOf({}, Chunk("JUNK", "", size) + audio), -1) << size;
    // Before the file's first byte there is no place to go to: the next chunk follows the header.
    EXPECT_EQ(DelayOf({}, Chunk("JUNK", "", -1'000'000) + audio), 2);
    // A small step back leads into the chunk's own header: to its size's last two bytes, and on from there.
    EXPECT_EQ(DelayOf({}, Chunk("JUNK", Zeros(2), -2) + audio), -1);
    // Lists are entered whatever their size says; only an index is skipped.
    EXPECT_EQ(DelayOf({}, "LIST" + Bytes(-2'147'483'648LL, 4) + "movi" + audio), 2);
    EXPECT_EQ(DelayOf({}, "LIST" + Bytes(-100, 4) + "idx1" + audio), -1);
    EXPECT_EQ(DelayOf({}, List("idx1", audio) + Chunk("00wb", kMp3Frame)), 0);
    // Each begins within the header of the one before.
    std::string nested;
    while (nested.size() < 600'000)
        nested += "LIST" + Bytes(-1, 4) + "LIST";
    EXPECT_EQ(DelayOf({}, nested), -1);
    EXPECT_EQ(Delays(File(std::string(600'000, '\xFF'))), "");
}
