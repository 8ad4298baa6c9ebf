#include "lectures/CustomTableCellView.h"

#include "lectures/Dressing.h"
#include "lectures/LectureRowHost.h"
#include "platform/Images.h"
#include "platform/Texts.h"
#include "store/LectureInfoItem.h"
#include "widgets/Colours.h"
#include "widgets/CutLabel.h"
#include "widgets/ImageButton.h"
#include "widgets/ImageView.h"
#include "widgets/Lines.h"
#include "widgets/PlainToolTip.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRect>
#include <QRectF>
#include <QStringList>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvelo::lectures {

using widgets::ImageButton;

namespace {

constexpr int Margin = 14;
constexpr int PlaySide = 36;
constexpr int TextX = Margin + PlaySide + 12;
constexpr int ButtonSide = 24;
constexpr int ButtonGap = 6;
// Between the line of the subject and that of the notes.
constexpr int LineHeight = 22;
constexpr int LineGap = 1;

int lineHeightOf(const QLabel &label)
{
    return std::max(LineHeight, label.fontMetrics().height());
}

// The notes' first words, on one line.
QString beginningOf(const QString &notes)
{
    return notes.left(400).simplified();
}

} // namespace

CustomTableCellView::CustomTableCellView(QWidget *parent)
    : QFrame(parent)
    , m_imageView(new widgets::ImageView(this))
    , m_tracking(*this, {[this] { mouseEntered(); }, [this] { mouseExited(); }})
{
    m_imageView->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_subject = makeLabel("lblSubject", 15, widgets::colours().ink);
    m_notes = makeLabel("lblNotes", 12, widgets::colours().faint);
    m_duration = makeLabel("lblDuration", 13, widgets::colours().faint);
    m_btnPlay = makeButton("btnPlay", "play", "ROW_PLAY");
    m_btnPlay->setAlternateImage(platform::imageNamed(QStringLiteral("playH")));
    m_btnEdit = makeButton("btnEdit", "edit", "ROW_EDIT");
    m_btnDelete = makeButton("btnDelete", "trash", "ROW_DELETE");
    m_btnBrowse = makeButton("btnBrowse", "folder", "ROW_SHOW_FILE");
    m_btnInfo = makeButton("btnInfo", "more", "ROW_INFO");
    m_btnEmail = makeButton("btnEmail", "mail", "ROW_SHARE");
    m_btnExport = makeButton("btnExport", "export", "ROW_EXPORT");
    m_btnPlay->show();
}

QLabel *CustomTableCellView::makeLabel(const char *name, double size, const QColor &colour)
{
    auto *label = new widgets::CutLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    // Notes are the student's own words, never markup.
    label->setTextFormat(Qt::PlainText);
    // The table's rows lie on its base colour and would take the colour of its text.
    label->setForegroundRole(QPalette::WindowText);
    lectures::style(*label, size, colour);
    return label;
}

ImageButton *CustomTableCellView::makeButton(const char *name, const char *image,
                                             const char *textKey)
{
    auto *button = new ImageButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setLook(QString::fromLatin1(image), QString(), platform::text(textKey));
    // The table leads the keyboard over the buttons of its selected row; a click leaves it there.
    button->setFocusPolicy(Qt::NoFocus);
    button->hide();
    return button;
}

std::array<ImageButton *, 7> CustomTableCellView::buttons() const
{
    return {m_btnPlay, m_btnInfo, m_btnBrowse, m_btnEdit, m_btnDelete, m_btnEmail, m_btnExport};
}

void CustomTableCellView::setObjectValue(const Lecture &lecture)
{
    // A menu is about the lecture that it was opened for.
    if (lecture != m_lecture)
        closeMenu();
    m_lecture = lecture;
    const QString subject = lecture ? lecture->strSubject() : QString();
    m_subject->setText(subject);
    m_subject->setToolTip(widgets::plainToolTip(subject));
    m_notes->setText(lecture ? beginningOf(lecture->strNotes()) : QString());
    m_duration->setText(lecture ? lecture->strRecordingDuration() : QString());
    QStringList name{subject, m_duration->text()};
    name.removeAll(QString());
    setAccessibleName(name.join(QStringLiteral(", ")));
    showButtons();
}

void CustomTableCellView::setCurrent(bool current)
{
    if (m_isCurrent == current)
        return;
    m_isCurrent = current;
    showButtons();
    update();
}

// At rest a row has its play button alone; what else it can do shows when someone turns to it. Mail
// and export are reached by the menu.
void CustomTableCellView::showButtons()
{
    const bool isTurnedTo = m_lecture && (m_isMouseOver || m_isCurrent);
    m_btnEdit->setVisible(isTurnedTo);
    m_btnDelete->setVisible(isTurnedTo);
    m_btnBrowse->setVisible(isTurnedTo && hasFile());
    layoutSubviews();
}

bool CustomTableCellView::hasFile() const
{
    return m_lecture && !m_lecture->getLectureAudioPath().isEmpty();
}

void CustomTableCellView::layoutSubviews()
{
    const auto place = [this](QWidget &view, const QRect &frame) {
        view.setGeometry(QStyle::visualRect(layoutDirection(), rect(), frame));
    };
    place(*m_imageView, rect());
    place(*m_btnPlay, {Margin, (height() - PlaySide) / 2, PlaySide, PlaySide});

    // The two lines stand together in the middle of the row, as high as the desktop's letters are.
    const int height1 = lineHeightOf(*m_subject);
    const int height2 = lineHeightOf(*m_notes);
    const QRect line1(0, (height() - height1 - LineGap - height2 + 1) / 2, 0, height1);
    const QRect line2(0, line1.bottom() + 1 + LineGap, 0, height2);
    const int right = width() - Margin;
    // Each has its own place, whichever of them show: the mouse comes to a row that the keyboard
    // is on, and none may move away under it. A pop-over may point to one that does not show.
    int x = right - ButtonSide;
    int notesEnd = right;
    for (ImageButton *button :
         {m_btnDelete, m_btnEdit, m_btnBrowse, m_btnInfo, m_btnEmail, m_btnExport}) {
        place(*button, {x, line2.center().y() - ButtonSide / 2 + 1, ButtonSide, ButtonSide});
        if (!button->isHidden())
            notesEnd = x - 2 * ButtonGap;
        if (button != m_btnBrowse || hasFile())
            x -= ButtonSide + ButtonGap;
    }

    const int durationWidth = m_duration->sizeHint().width();
    place(*m_duration, {right - durationWidth, line1.y(), durationWidth, line1.height()});
    place(*m_subject,
          {TextX, line1.y(), right - durationWidth - 2 * ButtonGap - TextX, line1.height()});
    place(*m_notes, {TextX, line2.y(), notesEnd - TextX, line2.height()});
}

void CustomTableCellView::awakeFromNib()
{
    trackMouse();
}

void CustomTableCellView::trackMouse()
{
    m_tracking.removeTrackingRect(m_trackingTag);
    m_trackingTag = m_tracking.addTrackingRect(rect());
}

bool CustomTableCellView::isConfirmDeleteShowing() const
{
    return m_host && m_host->isConfirmDeleteShowing();
}

void CustomTableCellView::mouseEntered()
{
    if (isConfirmDeleteShowing())
        return;
    m_isMouseOver = true;
    m_btnInfo->show();
    m_imageView->setImage(platform::imageNamed(QStringLiteral("cellimageH")));
    showButtons();
}

// The row has no image at rest, and not the one called "cellimage", which is wanted.
void CustomTableCellView::mouseExited()
{
    if (isConfirmDeleteShowing())
        return;
    m_isMouseOver = false;
    m_btnInfo->hide();
    m_imageView->setImage({});
    showButtons();
}

void CustomTableCellView::setMouseOver(bool over)
{
    if (over == m_isMouseOver)
        return;
    if (over)
        mouseEntered();
    else
        mouseExited();
}

void CustomTableCellView::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layoutSubviews();
    if (m_trackingTag != 0)
        trackMouse();
}

void CustomTableCellView::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layoutSubviews();
}

void CustomTableCellView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect line(TextX, height() - 1, width() - TextX, 1);
    widgets::drawHairline(painter, QStyle::visualRect(layoutDirection(), rect(), line),
                          widgets::colours().hairline);
    if (!m_isCurrent)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(widgets::lineIn(painter, rect().adjusted(3, 1, -3, -3)), 8, 8);
}

} // namespace tarvelo::lectures
