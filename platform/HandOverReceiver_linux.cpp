#include "platform/HandOverReceiver_linux.h"

#include <cerrno>
#include <sys/socket.h>
#include <utility>

namespace zentaro::platform {

bool IsOwnUserAt(int socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && AcceptsHandOverPeer(peer.uid, geteuid());
}

HandOverSender::HandOverSender(FileDescriptor socket, QObject* parent)
    : QObject(parent)
    , m_socket(std::move(socket))
    , notifier(m_socket.Number(), QSocketNotifier::Read)
{
    silence.setSingleShot(true);
}

bool HandOverSender::ReadPiece()
{
    char piece[65536];
    const auto size = recv(m_socket.Number(), piece, sizeof piece, 0);
    if (size < 0)
        return errno != EAGAIN && errno != EINTR;
    if (size == 0)
        return true;
    return !m_reader.Take({ piece, static_cast<std::size_t>(size) });
}

void HandOverSender::Answer()
{
    // A sender that is gone needs no answer.
    [[maybe_unused]] const auto sent = send(m_socket.Number(), &kHandOverAnswer, 1, MSG_NOSIGNAL);
}

void HandOverSender::Drop()
{
    silence.stop();
    notifier.setEnabled(false);
    m_socket.Close();
    deleteLater(); // this may be inside one of its own signals
}

HandOverReceiver::HandOverReceiver(int listeningSocket, std::function<void(std::string)> handler, Limits limits)
    : m_notifier(listeningSocket, QSocketNotifier::Read)
    , m_handler(std::move(handler))
    , m_limits(limits)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, this, [this] { AcceptAll(); });
}

void HandOverReceiver::AcceptAll()
{
    while (m_senders < m_limits.senders) {
        FileDescriptor socket(
            accept4(static_cast<int>(m_notifier.socket()), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (socket) {
            Adopt(std::move(socket));
            continue;
        }
        if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM)
            Pause();
        return;
    }
    m_notifier.setEnabled(false); // until one of them is done
}

void HandOverReceiver::Pause()
{
    m_notifier.setEnabled(false);
    QTimer::singleShot(200, this, [this] { m_notifier.setEnabled(true); });
}

void HandOverReceiver::Adopt(FileDescriptor socket)
{
    if (!IsOwnUserAt(socket.Number()))
        return;
    auto* sender = new HandOverSender(std::move(socket), this);
    ++m_senders;
    QObject::connect(&sender->notifier, &QSocketNotifier::activated, this, [this, sender] { ReadFrom(*sender); });
    QObject::connect(&sender->silence, &QTimer::timeout, this, [this, sender] { Drop(*sender); });
    sender->silence.start(m_limits.silence);
}

void HandOverReceiver::ReadFrom(HandOverSender& sender)
{
    if (!sender.ReadPiece()) {
        sender.silence.start();
        return;
    }
    sender.notifier.setEnabled(false);
    sender.silence.stop();
    auto text = sender.Text();
    if (!text) {
        Drop(sender);
        return;
    }
    m_waiting.push_back({ &sender, std::move(*text) });
    // Not from here: the handler may run an event loop, and this is inside a notifier's signal.
    QMetaObject::invokeMethod(
        this, [this] { HandleAll(); }, Qt::QueuedConnection);
}

void HandOverReceiver::Drop(HandOverSender& sender)
{
    sender.Drop();
    --m_senders;
    m_notifier.setEnabled(true);
}

void HandOverReceiver::HandleAll()
{
    if (m_isHandling)
        return;
    m_isHandling = true;
    const QPointer<HandOverReceiver> self(this);
    while (!m_waiting.empty()) {
        auto next = std::move(m_waiting.front());
        m_waiting.pop_front();
        const auto handler = m_handler;
        handler(std::move(next.text));
        if (!self)
            return; // the handler has ended the player
        if (next.sender) {
            next.sender->Answer();
            Drop(*next.sender);
        }
    }
    m_isHandling = false;
}

} // namespace zentaro::platform
