#pragma once

#include "platform/SessionService.h"
#include "platform/StyledText.h"

#include <chrono>

class QUrl;

namespace tarvelo::platform {

// Opens a new message in the user's mail program. Nothing is awaited and no failure is told.
class MailComposer
{
public:
    MailComposer() = default;
    MailComposer(const MailComposer &) = delete;
    MailComposer &operator=(const MailComposer &) = delete;
    virtual ~MailComposer() = default;

    // The text becomes the body. The attachment need not exist.
    virtual void compose(const StyledText &text, const QUrl &attachment) = 0;
};

// Asks the desktop's portal, which gets the file as a descriptor; without one that answers, the
// command xdg-email. Both take a body without fonts, and neither takes a file that cannot be read:
// the words go alone then.
class DesktopMailComposer final : public MailComposer
{
public:
    explicit DesktopMailComposer(std::chrono::milliseconds patience = PatienceWithServices)
        : m_patience(patience)
    {
    }

    void compose(const StyledText &text, const QUrl &attachment) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace tarvelo::platform
