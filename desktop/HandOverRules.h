#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zentaro::desktop {

/// The longest text that is handed over, in bytes.
inline constexpr std::size_t kHandOverTextLimit = 16 * 1024 * 1024;

/// The number behind a handle's text: decimal digits alone, not 0, at most 64 bits. Nothing for any other text.
std::optional<std::uint64_t> ParseHandOverHandle(std::string_view handle);

/// Texts are exchanged only between processes of one user; not even with the administrator's.
bool AcceptsHandOverPeer(std::uint32_t peerUser, std::uint32_t ownUser);

/// The text up to its first NUL byte.
std::string_view HandOverText(std::string_view text);

/// One text as it goes through a socket: the four characters "ZNT1", the text's length in bytes (32 bits, lowest byte
/// first), the text. Then the sender closes its sending side. The text must not be longer than the limit.
std::string EncodeHandOverFrame(std::string_view text);

/// Puts one frame together from pieces of any size.
class HandOverFrameReader {
public:
    /// False once the bytes can no longer become a frame; what follows is not kept.
    bool Take(std::string_view bytes);
    /// The text, when the sender's side is closed and the frame is complete to the byte.
    std::optional<std::string> Finish();

private:
    bool HeaderIsGood() const;

    std::string m_bytes;
    std::size_t m_length = 0;
    bool m_bad = false;
};

/// What the receiver tells the sender, a byte each: first that it has taken the text over, then either that it was
/// opened or that the sender need not wait for that any longer.
inline constexpr char kHandOverTaken = 'T';
inline constexpr char kHandOverOpened = '1';
inline constexpr char kHandOverLater = 'L';

} // namespace zentaro::desktop
