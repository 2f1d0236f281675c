#pragma once

#include "platform/FileDescriptor_linux.h"
#include "platform/HandOverRules.h"

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <deque>
#include <functional>
#include <string>

namespace zentaro::platform {

/// True when the process at the other end of a connected socket belongs to this user.
bool IsOwnUserAt(int socket);

/// One sender that is connected.
class HandOverSender : public QObject {
    FileDescriptor m_socket; // outlives its notifier

public:
    HandOverSender(FileDescriptor socket, QObject* parent);

    /// Reads what has come. True when nothing more is to be read, because all has come or it was not in order.
    bool ReadPiece();
    /// Whole after the last piece, nothing when the sender has not kept to the form.
    std::optional<std::string> Text() { return m_reader.Finish(); }
    void Answer();
    /// Ends the connection; the object goes with the next round of the event loop.
    void Drop();

    QSocketNotifier notifier;
    QTimer silence;

private:
    HandOverFrameReader m_reader;
};

/// Receives texts at one listening socket without ever waiting for a sender, and handles them one after the other on
/// its own thread.
class HandOverReceiver : public QObject {
public:
    struct Limits {
        /// How long a sender may stay silent before its text is complete.
        std::chrono::milliseconds silence = std::chrono::seconds(10);
        /// Senders that are connected at once; further ones wait in the system's queue.
        int senders = 256;
    };

    /// The socket must not block and must stay open as long as the receiver.
    HandOverReceiver(int listeningSocket, std::function<void(std::string)> handler, Limits limits);

private:
    struct Waiting {
        QPointer<HandOverSender> sender;
        std::string text;
    };

    void AcceptAll();
    void Pause();
    void Adopt(FileDescriptor socket);
    void ReadFrom(HandOverSender& sender);
    void Drop(HandOverSender& sender);
    void HandleAll();

    QSocketNotifier m_notifier;
    std::function<void(std::string)> m_handler;
    Limits m_limits;
    int m_senders = 0;
    std::deque<Waiting> m_waiting;
    bool m_isHandling = false;
};

} // namespace zentaro::platform
