// A session manager for one program: it lists where it can be reached on its output, and then does
// what its input says, a word a line:
//
//     ask     tells the program that the session is to end, and lets it talk to the user
//     die     tells it that the session has ended
//
// What the program answers goes to the output, a word a line: "registered", "saved", and
// "cancelled" when it asked to put the end of the session off.

#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

SmsConn client = nullptr;
bool isClosed = false;
std::string typed;

void say(const char *word)
{
    std::puts(word);
    std::fflush(stdout);
}

Status registerClient(SmsConn connection, SmPointer, char *previousId)
{
    char *id = SmsGenerateClientID(connection);
    SmsRegisterClientReply(connection, id);
    std::free(id);
    std::free(previousId);
    client = connection;
    // Every program saves itself once when it joins.
    SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
    return 1;
}

void interactDone(SmsConn connection, SmPointer, Bool cancelled)
{
    if (!cancelled)
        return;
    say("cancelled");
    SmsShutdownCancelled(connection);
}

void saved(SmsConn connection, SmPointer, Bool)
{
    static bool isFirst = true;
    say(isFirst ? "registered" : "saved");
    if (isFirst)
        SmsSaveComplete(connection);
    isFirst = false;
}

void closed(SmsConn connection, SmPointer, int count, char **reasons)
{
    SmFreeReasons(count, reasons);
    IceConn ice = SmsGetIceConnection(connection);
    SmsCleanUp(connection);
    IceSetShutdownNegotiation(ice, False);
    IceCloseConnection(ice);
    isClosed = true;
}

void setProperties(SmsConn, SmPointer, int count, SmProp **properties)
{
    for (int at = 0; at < count; ++at)
        SmFreeProperty(properties[at]);
    std::free(static_cast<void *>(properties));
}

void deleteProperties(SmsConn, SmPointer, int count, char **names)
{
    for (int at = 0; at < count; ++at)
        std::free(names[at]);
    std::free(static_cast<void *>(names));
}

Status joined(SmsConn, SmPointer, unsigned long *mask, SmsCallbacks *callbacks, char **)
{
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
            SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask | SmsSetPropertiesProcMask |
            SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
    callbacks->register_client.callback = registerClient;
    callbacks->interact_request.callback = [](SmsConn connection, SmPointer, int) {
        SmsInteract(connection);
    };
    callbacks->interact_done.callback = interactDone;
    callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {
    };
    callbacks->save_yourself_phase2_request.callback = [](SmsConn connection, SmPointer) {
        SmsSaveYourselfPhase2(connection);
    };
    callbacks->save_yourself_done.callback = saved;
    callbacks->close_connection.callback = closed;
    callbacks->set_properties.callback = setProperties;
    callbacks->delete_properties.callback = deleteProperties;
    callbacks->get_properties.callback = [](SmsConn connection, SmPointer) {
        SmsReturnProperties(connection, 0, nullptr);
    };
    return 1;
}

void obey(const std::string &word)
{
    if (client && word == "ask")
        SmsSaveYourself(client, SmSaveBoth, True, SmInteractStyleAny, False);
    else if (client && word == "die")
        SmsDie(client);
}

// False when there is no more to come.
bool readWords()
{
    std::array<char, 256> buffer{};
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count <= 0)
        return false;
    typed.append(buffer.data(), static_cast<std::size_t>(count));
    for (std::size_t end = typed.find('\n'); end != std::string::npos; end = typed.find('\n')) {
        obey(typed.substr(0, end));
        typed.erase(0, end + 1);
    }
    return true;
}

} // namespace

int main()
{
    std::array<char, 256> error{};
    const auto anybody = [](char *) { return Bool(True); };
    int count = 0;
    IceListenObj *listening = nullptr;
    if (!SmsInitialize("Tarvelo", "1", joined, nullptr, anybody, error.size(), error.data()) ||
        !IceListenForConnections(&count, &listening, error.size(), error.data()))
        return 1;
    // Clients that go without a word are no reason to end.
    IceSetIOErrorHandler([](IceConn) {});
    for (int at = 0; at < count; ++at)
        IceSetHostBasedAuthProc(listening[at], anybody);
    char *addresses = IceComposeNetworkIdList(count, listening);
    say(addresses);
    std::free(addresses);

    IceConn connection = nullptr;
    for (;;) {
        std::vector<pollfd> watched{{STDIN_FILENO, POLLIN, 0}};
        for (int at = 0; at < count; ++at)
            watched.push_back({IceGetListenConnectionNumber(listening[at]), POLLIN, 0});
        if (connection && !isClosed)
            watched.push_back({IceConnectionNumber(connection), POLLIN, 0});
        if (poll(watched.data(), watched.size(), -1) < 0)
            return 1;
        if (watched.front().revents && !readWords())
            return 0;
        for (int at = 0; at < count; ++at) {
            if (!watched[static_cast<std::size_t>(at) + 1].revents)
                continue;
            IceAcceptStatus status{};
            connection = IceAcceptConnection(listening[at], &status);
            isClosed = false;
        }
        const bool hasNews =
            watched.size() > static_cast<std::size_t>(count) + 1 && watched.back().revents != 0;
        if (connection && !isClosed && hasNews &&
            IceProcessMessages(connection, nullptr, nullptr) == IceProcessMessagesIOError)
            isClosed = true;
    }
}
