#pragma once

#include "platform/MailComposer.h"

#include <QUrl>

namespace tarvelo::tests {

// A mail program that opens nothing and remembers what it was to compose.
class FakeMailComposer final : public platform::MailComposer
{
public:
    struct Mail
    {
        platform::StyledText text;
        QUrl attachment;
    };

    QList<Mail> mails;

    void compose(const platform::StyledText &text, const QUrl &attachment) override
    {
        mails.append({text, attachment});
    }
};

} // namespace tarvelo::tests
