#include "lectures/CustomTableCellView.h"

#include "platform/Fonts.h"
#include "platform/Texts.h"
#include "widgets/ImageButton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace tarvelo::lectures {

namespace {

const QColor SubjectColour(60, 57, 66);
const QColor DetailColour(120, 116, 128);
const QColor LineColour(232, 231, 235);

// The notes' first words, on one line.
QString beginningOf(const QString &notes)
{
    return notes.left(400).simplified();
}

// Keeps its whole text and shows as much of it as there is room for.
class CutLabel final : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeading, shown);
    }
};

} // namespace

CustomTableCellView::CustomTableCellView(QWidget *parent)
    : QFrame(parent)
{
    m_subject = makeLabel("lblSubject", 15, SubjectColour);
    m_notes = makeLabel("lblNotes", 12, DetailColour);
    m_duration = makeLabel("lblDuration", 13, DetailColour);
    m_btnBrowse = new widgets::ImageButton(this);
    m_btnBrowse->setObjectName(QStringLiteral("btnBrowse"));
    m_btnBrowse->setLook(QStringLiteral("folder"), QString(), platform::text("ROW_SHOW_FILE"));
    m_btnBrowse->setFixedSize(28, 28);
    // Durations stand under each other, whether or not there is a file to show.
    QSizePolicy policy = m_btnBrowse->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_btnBrowse->setSizePolicy(policy);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_subject);
    texts->addWidget(m_notes);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 10, 12, 10);
    layout->setSpacing(12);
    layout->addLayout(texts, 1);
    layout->addWidget(m_duration);
    layout->addWidget(m_btnBrowse);
    // A long subject is cut at the row's edge instead of widening the row.
    m_subject->setMinimumWidth(1);
    m_notes->setMinimumWidth(1);
}

QLabel *CustomTableCellView::makeLabel(const char *name, double size, const QColor &colour)
{
    auto *label = new CutLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    // Notes are the student's own words, never markup.
    label->setTextFormat(Qt::PlainText);
    label->setFont(platform::fontNamed(QStringLiteral("Helvetica Neue Medium"), size));
    // The table's rows lie on its base colour and would take the colour of its text.
    label->setForegroundRole(QPalette::WindowText);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, colour);
    label->setPalette(colours);
    return label;
}

void CustomTableCellView::setObjectValue(const Lecture &lecture)
{
    m_lecture = lecture;
    const QString subject = lecture ? lecture->strSubject() : QString();
    m_subject->setText(subject);
    m_subject->setToolTip(subject.toHtmlEscaped());
    m_notes->setText(lecture ? beginningOf(lecture->strNotes()) : QString());
    m_notes->setHidden(m_notes->text().isEmpty());
    m_duration->setText(lecture ? lecture->strRecordingDuration() : QString());
    m_btnBrowse->setVisible(lecture && !lecture->getLectureAudioPath().isEmpty());
    setAccessibleName(subject + QStringLiteral(", ") + m_duration->text());
}

void CustomTableCellView::setCurrent(bool current)
{
    if (m_isCurrent == current)
        return;
    m_isCurrent = current;
    update();
}

void CustomTableCellView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect line(16, height() - 1, width() - 16, 1);
    painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), line), LineColour);
    if (!m_isCurrent)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -4), 6, 6);
}

} // namespace tarvelo::lectures
