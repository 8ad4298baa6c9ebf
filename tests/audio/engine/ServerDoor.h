#pragma once

#include <QFile>
#include <QString>

#include <algorithm>
#include <array>
#include <atomic>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace tarvelo::tests {

// A door of the sound server's, through which all that goes in and out can be held up. Has a thread
// for each who is inside.
class ServerDoor final
{
public:
    ServerDoor(const QString &path, const QString &server)
        : m_path(path)
        , m_server(server)
        , m_listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        const sockaddr_un place = placeOf(path);
        m_isOpen =
            ::bind(m_listener, reinterpret_cast<const sockaddr *>(&place), sizeof place) == 0 &&
            ::listen(m_listener, 8) == 0;
        m_doorman = std::thread([this] { letIn(); });
    }
    ServerDoor(const ServerDoor &) = delete;
    ServerDoor &operator=(const ServerDoor &) = delete;
    ~ServerDoor()
    {
        m_isOver = true;
        m_doorman.join();
        for (std::thread &guest : m_guests)
            guest.join();
        ::close(m_listener);
    }

    bool isOpen() const { return m_isOpen; }
    const QString &path() const { return m_path; }
    // Sends everybody away; who comes back gets in.
    void sendAway() { ++m_generation; }
    // Who asks for a stream to record with gets no answer any more.
    void holdStreams() { m_holdsStreams = true; }
    bool isHoldingOne() const { return m_held > 0; }
    void letThrough() { m_holdsStreams = false; }

private:
    static sockaddr_un placeOf(const QString &path)
    {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        const QByteArray name = QFile::encodeName(path);
        std::copy_n(
            name.constData(),
            std::min<std::size_t>(static_cast<std::size_t>(name.size()), sizeof place.sun_path - 1),
            place.sun_path);
        return place;
    }
    void letIn()
    {
        while (!m_isOver) {
            pollfd news{m_listener, POLLIN, 0};
            if (::poll(&news, 1, 20) <= 0)
                continue;
            const int guest = ::accept(m_listener, nullptr, nullptr);
            m_guests.emplace_back([this, guest] { serve(guest); });
        }
    }
    void serve(int guest)
    {
        const int generation = m_generation;
        const int server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const sockaddr_un place = placeOf(m_server);
        bool isThere =
            ::connect(server, reinterpret_cast<const sockaddr *>(&place), sizeof place) == 0;
        bool isHeld = false;
        while (isThere && !m_isOver && generation == m_generation) {
            if (isHeld && !m_holdsStreams) {
                isHeld = false;
                --m_held;
            }
            std::array<pollfd, 2> news{
                {{guest, POLLIN, 0}, {server, static_cast<short>(isHeld ? 0 : POLLIN), 0}}};
            if (::poll(news.data(), news.size(), 20) <= 0)
                continue;
            if (news[0].revents != 0)
                isThere = handOn(guest, server, isHeld);
            if (isThere && !isHeld && news[1].revents != 0)
                isThere = handOn(server, guest, isHeld);
        }
        m_held -= isHeld ? 1 : 0;
        ::close(server);
        ::close(guest);
    }
    bool handOn(int from, int to, bool &isHeld)
    {
        std::array<char, 65536> bytes{};
        const ssize_t count = ::recv(from, bytes.data(), bytes.size(), 0);
        if (count <= 0)
            return false;
        const std::string_view said(bytes.data(), static_cast<std::size_t>(count));
        if (m_holdsStreams && !isHeld && said.find("Lecture") != said.npos) {
            isHeld = true;
            ++m_held;
        }
        for (std::size_t sent = 0; sent < said.size();) {
            const ssize_t now = ::send(to, said.data() + sent, said.size() - sent, MSG_NOSIGNAL);
            if (now <= 0)
                return false;
            sent += static_cast<std::size_t>(now);
        }
        return true;
    }

    QString m_path;
    const QString m_server;
    const int m_listener;
    bool m_isOpen = false;
    std::atomic<bool> m_isOver = false;
    std::atomic<bool> m_holdsStreams = false;
    std::atomic<int> m_held = 0;
    std::atomic<int> m_generation = 0;
    std::thread m_doorman;
    std::vector<std::thread> m_guests; // the doorman's, while there is one
};

} // namespace tarvelo::tests
