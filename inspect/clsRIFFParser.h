#pragma once

#include "inspect/StreamWindow.h"

#include <cstdint>
#include <fstream>
#include <istream>
#include <memory>
#include <string>

namespace zentaro {

/// A sequential reader of RIFF chunks (Multimedia Programming Interface and Data Specifications 1.0, chapter 2). Lists
/// are entered, not nested: a list's header is one step, its first inner chunk the next. Sizes are signed; one that
/// leads nowhere new, or to a position that a signed 32-bit number does not hold, is the end of the file.
class clsRIFFParser {
public:
    enum class ChunkKind { Chunk, List, Eof };

    /// False when the file is no regular file, cannot be read or is no RIFF file.
    bool OpenFile(const std::string& fileName);
    /// The same for a stream that can seek; it must outlive the parser.
    bool OpenStream(std::istream& stream);

    /// Reads the next chunk's header, wherever in the current payload the reader stands.
    void GetChunk();
    /// Goes behind the payload of the current chunk, from its beginning.
    void SkipChunk();
    /// Reads from the current position on and stays behind what was read. False when the file has not that much.
    [[nodiscard]] bool Read(std::span<std::uint8_t> target);
    /// The window at an offset from the current position, which does not move.
    std::span<const std::uint8_t> Peek(std::int64_t offset) { return m_window->From(m_position + offset); }

    const std::string& FileName() const { return m_fileName; }
    std::int32_t FileSize() const { return m_fileSize; }
    const std::string& FileType() const { return m_fileType; }
    ChunkKind ChunkType() const { return m_chunkType; }
    /// A chunk's size rounded up to even, a list's without its type.
    std::int32_t ChunkSize() const { return m_chunkSize; }
    /// The identifier, or a list's type.
    const std::string& ChunkID() const { return m_chunkId; }
    /// Chunks and lists read so far.
    std::int32_t ChunkCount() const { return m_chunkCount; }
    /// Bytes from the file's start.
    std::int64_t Location() const { return m_position; }
    /// True when a chunk's payload is all there.
    bool HasWholePayload() const { return m_position + m_chunkSize <= m_window->Length(); }

private:
    bool ReadId(std::string& id);
    bool ReadSize(std::int32_t& size);
    void PassChunk(std::int32_t size);
    void EnterList(std::int32_t size);
    void GoTo(std::int64_t oneBasedPosition);

    std::ifstream m_file;
    std::unique_ptr<StreamWindow> m_window;
    std::string m_fileName;
    std::string m_fileType;
    std::string m_chunkId;
    ChunkKind m_chunkType = ChunkKind::Chunk;
    std::int32_t m_fileSize = 0;
    std::int32_t m_chunkSize = 0;
    std::int32_t m_chunkCount = 0;
    std::int64_t m_nextChunkPos = 0; // from 1; 0 or less: the next chunk follows here
    std::int64_t m_position = 0;
    std::int64_t m_chunkStart = 0;
};

} // namespace zentaro
