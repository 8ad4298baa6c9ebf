#include "lectures/Dressing.h"

#include "platform/Images.h"
#include "widgets/Colours.h"
#include "widgets/CustomTextFieldFormatter.h"
#include "widgets/Faces.h"
#include "widgets/FieldFormatter.h"
#include "widgets/ImageButton.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QSize>
#include <QSizePolicy>
#include <QTextDocument>
#include <QTextEdit>
#include <QWidget>

namespace tarvelo::lectures {

using platform::imageNamed;
using widgets::ImageButton;

namespace {

// Longer texts than this one cannot be typed as a subject.
constexpr qint32 LongestSubject = 255;

} // namespace

void style(QLabel &label, double size, const QColor &colour)
{
    label.setFont(widgets::scaledFace(size));
    widgets::setColour(label, QPalette::WindowText, colour);
}

void fill(QWidget &view, const QColor &colour)
{
    widgets::setColour(view, QPalette::Window, colour);
    view.setAutoFillBackground(true);
}

void keepRoom(QWidget &view)
{
    QSizePolicy policy = view.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    view.setSizePolicy(policy);
}

void giveMargins(QLineEdit &field, QTextEdit &notes)
{
    field.setTextMargins(8, 0, 8, 0);
    notes.document()->setDocumentMargin(8);
}

void giveRoomToTitle(ImageButton &button)
{
    const QSize title = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    const QSize room(title.width() + 28, button.sizeHint().height());
    button.setMinimumSize(button.minimumSize().expandedTo(room));
}

void limitSubject(QLineEdit &field)
{
    widgets::CustomTextFieldFormatter formatter;
    formatter.setMaximumLength(LongestSubject);
    widgets::setFormatter(field, formatter);
}

void dressPlayPause(ImageButton &play, ImageButton &pause)
{
    play.setImage(imageNamed(QStringLiteral("play")));
    play.setAlternateImage(imageNamed(QStringLiteral("playH")));
    pause.setImage(imageNamed(QStringLiteral("pause")));
    pause.setAlternateImage(imageNamed(QStringLiteral("pauseH")));
}

} // namespace tarvelo::lectures
