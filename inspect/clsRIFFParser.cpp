#include "inspect/clsRIFFParser.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <limits>
#include <system_error>

namespace zentaro {

namespace {

using Limits = std::numeric_limits<std::int32_t>;

/// A named pipe would block the open until somebody writes into it.
bool IsRegularFile(const std::string& fileName)
{
    try {
        std::error_code failure;
        return std::filesystem::is_regular_file(fileName, failure);
    } catch (const std::filesystem::filesystem_error&) {
        return false; // no file name of this system
    }
}

} // namespace

bool clsRIFFParser::OpenFile(const std::string& fileName)
{
    if (!IsRegularFile(fileName))
        return false;
    m_file.open(fileName, std::ios::binary);
    if (!m_file || !OpenStream(m_file))
        return false;
    m_fileName = fileName;
    return true;
}

bool clsRIFFParser::OpenStream(std::istream& stream)
{
    m_window = std::make_unique<StreamWindow>(stream);
    std::string form;
    return ReadId(form) && form == "RIFF" && ReadSize(m_fileSize) && ReadId(m_fileType);
}

void clsRIFFParser::GetChunk()
{
    if (m_nextChunkPos > 0)
        GoTo(m_nextChunkPos);
    if (m_chunkType == ChunkKind::Eof)
        return;
    m_chunkStart = m_position;
    std::int32_t size = 0;
    if (!ReadId(m_chunkId) || !ReadSize(size)) {
        m_chunkType = ChunkKind::Eof;
        return;
    }
    if (m_chunkId == "LIST")
        EnterList(size);
    else
        PassChunk(size);
    ++m_chunkCount;
    if (m_position >= m_window->Length())
        m_chunkType = ChunkKind::Eof;
}

void clsRIFFParser::SkipChunk()
{
    GoTo(m_position + m_chunkSize + 1);
}

bool clsRIFFParser::Read(std::span<std::uint8_t> target)
{
    if (!m_window->Read(m_position, target))
        return false;
    m_position += static_cast<std::int64_t>(target.size());
    return true;
}

void clsRIFFParser::PassChunk(std::int32_t size)
{
    m_chunkType = ChunkKind::Chunk;
    // An odd payload has a padding byte that its size leaves out.
    const auto padded = std::int64_t{ size } + size % 2;
    m_chunkSize = static_cast<std::int32_t>(std::min<std::int64_t>(padded, Limits::max()));
    m_nextChunkPos = m_position + padded + 1;
}

void clsRIFFParser::EnterList(std::int32_t size)
{
    m_chunkType = ChunkKind::List;
    m_chunkSize = std::max(size, Limits::min() + 4) - 4;
    m_nextChunkPos = 0;
    if (!ReadId(m_chunkId))
        m_chunkType = ChunkKind::Eof;
}

void clsRIFFParser::GoTo(std::int64_t oneBasedPosition)
{
    // A negative size leads back: from the chunk's own start or before the walk would only repeat itself.
    if (oneBasedPosition - 1 <= m_chunkStart || oneBasedPosition > Limits::max())
        m_chunkType = ChunkKind::Eof;
    else
        m_position = oneBasedPosition - 1;
}

bool clsRIFFParser::ReadId(std::string& id)
{
    std::array<std::uint8_t, 4> bytes;
    if (!Read(bytes))
        return false;
    id.assign(bytes.begin(), bytes.end());
    return true;
}

bool clsRIFFParser::ReadSize(std::int32_t& size)
{
    std::array<std::uint8_t, 4> bytes;
    if (!Read(bytes))
        return false;
    const auto low = static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16);
    size = static_cast<std::int32_t>(low | static_cast<std::uint32_t>(bytes[3]) << 24);
    return true;
}

} // namespace zentaro
