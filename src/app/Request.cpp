#include "app/Request.h"

namespace tarvelo::app {

QByteArray wordOf(Request request)
{
    switch (request) {
    case Request::NewLecture:
        return "new-lecture";
    case Request::ShowPreferences:
        return "preferences";
    case Request::Reopen:
        break;
    }
    return "reopen";
}

std::optional<Request> requestOf(const QByteArray &word)
{
    for (const Request request : {Request::Reopen, Request::NewLecture, Request::ShowPreferences}) {
        if (wordOf(request) == word)
            return request;
    }
    return std::nullopt;
}

} // namespace tarvelo::app
