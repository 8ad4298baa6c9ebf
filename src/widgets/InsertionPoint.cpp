#include "widgets/InsertionPoint.h"

#include "widgets/ControlStyle.h"

#include <QApplication>
#include <QColor>
#include <QEvent>
#include <QLineEdit>
#include <QObject>
#include <QPainter>
#include <QRect>
#include <QTextEdit>
#include <QTimer>
#include <QWidget>

namespace tarvelo::widgets {

namespace {

constexpr int CaretWidth = 2;

// Leaves the field's own insertion point out, which always has the colour of the text.
class StyleWithoutCaret final : public ControlStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        return metric == PM_TextCursorWidth ? 0 : ControlStyle::pixelMetric(metric, option, widget);
    }
};

// The line itself, over the text and out of the mouse's way. It blinks as the desktop wants it to,
// and shows at once after each move.
class Caret final : public QWidget
{
public:
    Caret(QWidget &field, QWidget &canvas)
        : QWidget(&canvas)
        , m_field(field)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        connect(&m_blink, &QTimer::timeout, this, [this] { setVisible(!isVisible()); });
        field.installEventFilter(this);
        hide();
    }

    const QColor &color() const { return m_color; }
    void setColor(const QColor &color)
    {
        m_color = color;
        update();
    }

    void follow()
    {
        m_blink.stop();
        if (!m_field.hasFocus()) {
            hide();
            return;
        }
        QRect place = m_field.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        if (parentWidget() != &m_field)
            place.moveTopLeft(parentWidget()->mapFrom(&m_field, place.topLeft()));
        setGeometry(place.center().x(), place.top(), CaretWidth, place.height());
        show();
        raise();
        if (const int flash = QApplication::cursorFlashTime(); flash > 0)
            m_blink.start(flash / 2);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto type = event->type();
        // A field that is opened for writing gets a frame, and its text moves.
        if (type == QEvent::FocusIn || type == QEvent::FocusOut || type == QEvent::Resize ||
            type == QEvent::ReadOnlyChange)
            QTimer::singleShot(0, this, [this] { follow(); });
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), m_color); }

private:
    QWidget &m_field;
    QColor m_color;
    QTimer m_blink;
};

Caret *caretOf(const QWidget &canvas)
{
    for (QObject *child : canvas.children()) {
        if (auto *caret = dynamic_cast<Caret *>(child))
            return caret;
    }
    return nullptr;
}

} // namespace

QColor insertionPointColor(const QLineEdit &field)
{
    const Caret *caret = caretOf(field);
    return caret ? caret->color() : QColor();
}

QColor insertionPointColor(const QTextEdit &view)
{
    const Caret *caret = caretOf(*view.viewport());
    return caret ? caret->color() : QColor();
}

void setInsertionPointColor(QLineEdit &field, const QColor &color)
{
    Caret *caret = caretOf(field);
    if (!caret) {
        caret = new Caret(field, field);
        auto *style = new StyleWithoutCaret;
        style->setParent(&field);
        field.setStyle(style);
        QObject::connect(&field, &QLineEdit::cursorPositionChanged, caret, &Caret::follow);
        QObject::connect(&field, &QLineEdit::textChanged, caret, &Caret::follow);
    }
    caret->setColor(color);
}

void setInsertionPointColor(QTextEdit &view, const QColor &color)
{
    Caret *caret = caretOf(*view.viewport());
    if (!caret) {
        caret = new Caret(view, *view.viewport());
        view.setCursorWidth(0);
        QObject::connect(&view, &QTextEdit::cursorPositionChanged, caret, &Caret::follow);
        QObject::connect(&view, &QTextEdit::textChanged, caret, &Caret::follow);
    }
    caret->setColor(color);
}

} // namespace tarvelo::widgets
