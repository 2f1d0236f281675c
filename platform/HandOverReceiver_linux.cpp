#include "platform/HandOverReceiver_linux.h"

#include <QPointer>

#include <cerrno>
#include <sys/socket.h>
#include <utility>

namespace zentaro::platform {

using namespace desktop;

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
    patience.setSingleShot(true);
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

bool HandOverSender::Tell(char byte) const
{
    return send(m_socket.Number(), &byte, 1, MSG_NOSIGNAL) == 1;
}

void HandOverSender::Drop()
{
    patience.stop();
    notifier.setEnabled(false);
    m_socket.Close();
    deleteLater(); // this may be inside one of its own signals
}

HandOverReceiver::HandOverReceiver(int listeningSocket, Handler handler, Limits limits)
    : m_notifier(listeningSocket, QSocketNotifier::Read)
    , m_handler(std::move(handler))
    , m_limits(limits)
{
    QObject::connect(&m_notifier, &QSocketNotifier::activated, this, [this] { AcceptAll(); });
}

void HandOverReceiver::AcceptAll()
{
    while (m_senders < m_limits.senders || !m_taken.empty()) {
        FileDescriptor socket(
            accept4(static_cast<int>(m_notifier.socket()), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (socket) {
            Adopt(std::move(socket));
            MakeRoom();
            continue;
        }
        if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM)
            Pause();
        return;
    }
    m_notifier.setEnabled(false); // until one of them is done
}

void HandOverReceiver::MakeRoom()
{
    if (m_senders > m_limits.senders && !m_taken.empty()) {
        m_taken.front()->Tell(kHandOverLater);
        End(*m_taken.front());
    }
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
    QObject::connect(&sender->patience, &QTimer::timeout, this, [this, sender] {
        sender->Tell(kHandOverLater);
        End(*sender);
    });
    sender->patience.start(m_limits.silence);
}

void HandOverReceiver::ReadFrom(HandOverSender& sender)
{
    if (!sender.ReadPiece()) {
        sender.patience.start();
        return;
    }
    sender.notifier.setEnabled(false);
    auto text = sender.Text();
    // A sender that has given up closes its side, and opens the text itself: then it is no longer ours to take.
    if (text && sender.Tell(kHandOverTaken))
        TakeOver(sender, std::move(*text));
    else
        End(sender);
}

void HandOverReceiver::TakeOver(HandOverSender& sender, std::string text)
{
    m_taken.push_back(&sender);
    sender.patience.start(m_limits.opening);
    // The token outlives sender and receiver.
    auto done = [this, waiting = QPointer<HandOverSender>(&sender)] {
        if (!waiting || !waiting->IsConnected())
            return;
        waiting->Tell(kHandOverOpened);
        End(*waiting);
    };
    // Not from here: the handler may end the player, and this is inside a notifier's signal.
    QMetaObject::invokeMethod(
        this,
        [this, text = std::move(text), done = std::move(done)]() mutable {
            const auto handler = m_handler;
            handler(std::move(text), std::move(done));
        },
        Qt::QueuedConnection);
}

void HandOverReceiver::End(HandOverSender& sender)
{
    std::erase(m_taken, &sender);
    sender.Drop();
    --m_senders;
    m_notifier.setEnabled(true);
}

} // namespace zentaro::platform
