#include "lectures/Popovers.h"

#include "platform/Texts.h"
#include "widgets/ImageButton.h"
#include "widgets/LightPalette.h"
#include "widgets/PopOver.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include <utility>

namespace tarvelo::lectures {

using widgets::ImageButton;

namespace {

constexpr int GapBetweenButtons = 8;

// A text over a row of buttons, in the letters of every other sheet.
std::unique_ptr<widgets::PopOver> makePopover(const char *labelName)
{
    auto content = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(content.get());
    layout->setContentsMargins(18, 16, 18, 14);
    layout->setSpacing(12);
    auto *label = new QLabel(content.get());
    label->setObjectName(QString::fromLatin1(labelName));
    label->setTextFormat(Qt::PlainText);
    layout->addWidget(label);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(GapBetweenButtons);
    buttons->addStretch();
    layout->addLayout(buttons);
    auto popover = std::make_unique<widgets::PopOver>(std::move(content));
    widgets::setLightPalette(*popover);
    return popover;
}

ImageButton *addButton(QWidget &popoverContent, const char *name, const char *textKey)
{
    auto *button = new ImageButton(&popoverContent);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(platform::text(textKey));
    // Return presses the button that has the keyboard.
    button->setAutoDefault(true);
    popoverContent.layout()->itemAt(1)->layout()->addWidget(button);
    return button;
}

} // namespace

Popovers buildPopovers()
{
    Popovers built;
    built.confirmRecordDelete = makePopover("lblRecordDeleteConfirmation");
    built.audioConfirmClose = makePopover("lblPopoverNoAudio");
    QWidget &confirmation = built.confirmRecordDelete->content();
    QWidget &noAudio = built.audioConfirmClose->content();
    built.outlets = {built.audioConfirmClose.get(),
                     built.confirmRecordDelete.get(),
                     confirmation.findChild<QLabel *>(),
                     noAudio.findChild<QLabel *>(),
                     addButton(confirmation, "btnConfirmNo", "BUTTON_NO"),
                     addButton(confirmation, "btnConfirmYes", "BUTTON_YES"),
                     addButton(noAudio, "btnClosePopover", "BUTTON_CLOSE")};
    return built;
}

} // namespace tarvelo::lectures
