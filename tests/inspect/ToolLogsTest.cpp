#include "inspect/MpegReport.h"
#include "inspect/ReportParser.h"
#include "inspect/TextValues.h"
#include "inspect/ToolDialect.h"
#include "platform/Files.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <sstream>

using namespace zentaro;

// Every log that was captured from a build of ffmpeg or mpgtx, against what the libraries say about the same file.

namespace {

using Row = std::map<std::string, std::string>;

// Beside the test program, wherever that is run from.
std::filesystem::path g_logs;

std::string ReadWhole(const std::string& name)
{
    return platform::ReadTextFile((g_logs / name).string(), 10'000'000).value_or("");
}

std::vector<std::string> SplitAtTabs(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream text(line);
    for (std::string cell; std::getline(text, cell, '\t');)
        cells.push_back(cell);
    return cells;
}

std::vector<Row> ReadTable(const std::string& name)
{
    std::istringstream file(ReadWhole(name));
    std::string line;
    std::getline(file, line);
    const auto header = SplitAtTabs(line);
    std::vector<Row> rows;
    while (std::getline(file, line)) {
        const auto cells = SplitAtTabs(line);
        auto& row = rows.emplace_back();
        for (std::size_t i = 0; i < header.size() && i < cells.size(); ++i)
            row[header[i]] = cells[i];
    }
    return rows;
}

/// Collects what differs in one log. "-" stands for no value, "*" for any.
class Comparison {
public:
    void Number(const std::string& what, double is, const std::string& expected, double tolerance = 0)
    {
        if (expected != "*" && std::abs(is - (expected == "-" ? 0 : std::stod(expected))) > tolerance)
            Text(what, std::to_string(is), expected);
    }
    void Text(const std::string& what, const std::string& is, const std::string& expected)
    {
        if (expected != "*" && is != expected)
            differences += "  " + what + " is " + is + ", not " + expected + "\n";
    }

    std::string differences;
};

void CompareStream(Comparison& comparison, const StreamInfo& info, const StreamHint& hint, Row row, bool oldTool)
{
    const bool video = row["row"] == "video";
    comparison.Number("type", info.Type, video ? "2" : "1");
    comparison.Number("index", info.Index, row["index"].substr(0, 1));
    comparison.Number("whole number", hint.number, row["index"]);
    comparison.Text("codec", info.Compression, row["codec"]);
    comparison.Number("bit rate", info.BitRate, row["kbps"]);
    if (video) {
        comparison.Number("width", info.Width, row["width"]);
        comparison.Number("height", info.Height, row["height"]);
        comparison.Number("rate", static_cast<double>(info.FPS), row["fps"], 0.0051);
        if (!oldTool) // which prints it for few files, and for some that the library has none for
            comparison.Number("aspect", static_cast<double>(hint.displayAspect), row["dar"], 0.001);
    } else {
        comparison.Number("channels", info.Channels, row["channels"] == "5" ? "6" : row["channels"]);
        comparison.Number("sample rate", info.SampleRate, row["rate"]);
    }
}

std::string Differences(const std::string& log, const std::vector<Row>& rows)
{
    const CodecNames plain;
    const auto classic = ToClassicReport(ReadWhole(log), "", "");
    auto report = ParseReport(classic.text, "file", plain, plain);
    Comparison comparison;
    std::vector<Row> kept;
    for (auto row : rows) {
        if (row["row"] == "file") {
            comparison.Text("verdict", report.error.empty() ? "ok" : report.error, row["verdict"]);
            if (row["verdict"] != "ok")
                return comparison.differences;
            comparison.Number("duration", static_cast<double>(report.duration), row["rule_duration"], 0.01);
            comparison.Number("start", static_cast<double>(report.startTime), row["start"], 0.0011);
        } else if (row["kept"] == "yes") {
            kept.push_back(row);
        }
    }
    PruneVideoStreams(report.streams);
    comparison.Number("number of streams", static_cast<double>(report.streams.size()), std::to_string(kept.size()));
    for (std::size_t i = 0; i < std::min(kept.size(), report.streams.size()); ++i)
        CompareStream(
            comparison, report.streams[i].info, classic.streams[report.streams[i].line], kept[i], classic.classicTool);
    return comparison.differences;
}

/// Square pixels can be written as a code of their own or as the display's shape that follows from them.
float ShapeOf(const std::string& size)
{
    return static_cast<float>(std::stod(size) / std::stod(size.substr(size.find('x') + 1)));
}

std::string MpegDifferences(const std::string& log, Row row)
{
    const bool film = row["fps"] != "-";
    const auto facts = ParseMpegReport(ToClassicMpegReport(ReadWhole(log), "", "/media/clips/" + row["media"]));
    Comparison comparison;
    comparison.Number("rate", static_cast<double>(facts.frameRate), row["fps"], 0.0051);
    if (row["kbps"] != "vbr")
        comparison.Number("bit rate", facts.bitRate, row["kbps"], 5);
    if (film && !(row["aspect_code"] == "1/1" && ShapeOf(row["size"]) == facts.aspect)) {
        const auto slash = row["aspect_code"].find('/');
        const double aspect = std::stod(row["aspect_code"]) / std::stod(row["aspect_code"].substr(slash + 1));
        comparison.Number("aspect", static_cast<double>(facts.aspect), std::to_string(aspect), 0.001);
    }
    comparison.Text("interlaced", facts.interlaced ? "yes" : "no", film ? row["interlaced"] : "no");
    return comparison.differences;
}

} // namespace

TEST(ToolLogs, every_report_of_every_build_is_read_as_the_libraries_see_the_file)
{
    std::map<std::string, std::vector<Row>> byLog;
    for (auto& row : ReadTable("expected.tsv"))
        byLog[row["log"]].push_back(row);
    ASSERT_GT(byLog.size(), 1000U);
    for (const auto& [log, rows] : byLog)
        EXPECT_EQ(Differences(log, rows), "") << log;
    const auto rows = ReadTable("expected-mpgtx.tsv");
    ASSERT_GT(rows.size(), 10U);
    for (auto row : rows)
        EXPECT_EQ(MpegDifferences(row["log"], row), "") << row["log"];
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    g_logs = std::filesystem::absolute(argv[0]).parent_path() / "data" / "tool-logs";
    return RUN_ALL_TESTS();
}
