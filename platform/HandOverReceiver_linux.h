#pragma once

#include "desktop/HandOverRules.h"
#include "platform/Files_linux.h"
#include "platform/HandOver.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace zentaro::platform {

/// True when the process at the other end of a connected socket belongs to this user.
bool IsOwnUserAt(int socket);

/// One sender that is connected.
class HandOverSender : public QObject {
    FileDescriptor m_socket; // outlives its notifier

public:
    HandOverSender(FileDescriptor socket, QObject* parent);

    bool IsConnected() const { return static_cast<bool>(m_socket); }
    /// Reads what has come. True when nothing more is to be read, because all has come or it was not in order.
    bool ReadPiece();
    /// Whole after the last piece, nothing when the sender has not kept to the form.
    std::optional<std::string> Text() { return m_reader.Finish(); }
    /// False when the sender has gone.
    bool Tell(char byte) const;
    /// Ends the connection; the object goes with the next round of the event loop.
    void Drop();

    QSocketNotifier notifier;
    QTimer patience; ///< for the sender's next piece, then for the text to be opened

private:
    desktop::HandOverFrameReader m_reader;
};

/// Receives texts at one listening socket without ever waiting for a sender or for an earlier text, on its own thread.
class HandOverReceiver : public QObject {
public:
    struct Limits {
        /// How long a sender may stay silent before its text is complete.
        std::chrono::milliseconds silence = std::chrono::seconds(10);
        /// How long a sender is kept waiting for its text to be opened.
        std::chrono::milliseconds opening = HandOverLimits().opening;
        /// Senders that are connected at once. For further ones those go whose texts were taken over; while there are
        /// none, they wait in the system's queue.
        std::size_t senders = 256;
    };
    using Handler = std::function<void(std::string text, HandOverDone done)>;

    /// The socket must not block and must stay open as long as the receiver. The handler may destroy the receiver.
    HandOverReceiver(int listeningSocket, Handler handler, Limits limits);

private:
    void AcceptAll();
    void MakeRoom();
    void Pause();
    void Adopt(FileDescriptor socket);
    void ReadFrom(HandOverSender& sender);
    void TakeOver(HandOverSender& sender, std::string text);
    void End(HandOverSender& sender);

    QSocketNotifier m_notifier;
    Handler m_handler;
    Limits m_limits;
    std::size_t m_senders = 0;
    std::deque<HandOverSender*> m_taken; ///< those whose texts were taken over, the oldest first
};

} // namespace zentaro::platform
