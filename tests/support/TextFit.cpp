#include "support/TextFit.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGlyphRun>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSlider>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTextLayout>

namespace tarvelo::tests {

namespace {

// A control with the words on it, where they may stand and where they do.
struct Sign
{
    const QWidget *control;
    QString text;
    QRect place; // in the control
    QSize needed;
};

QString nameOf(const QWidget &control)
{
    return control.objectName().isEmpty() ? QString::fromLatin1(control.metaObject()->className())
                                          : control.objectName();
}

QSize sizeOf(const QString &text, const QWidget &control, int width, int flags)
{
    return control.fontMetrics().boundingRect(QRect(0, 0, width, 0), flags, text).size();
}

Sign signOf(const QLabel &label)
{
    const QRect place = label.contentsRect().marginsRemoved(
        QMargins(label.margin(), label.margin(), label.margin(), label.margin()));
    if (label.textFormat() == Qt::RichText)
        return {&label, QTextDocumentFragment::fromHtml(label.text()).toPlainText(), place,
                label.sizeHint()};
    const int flags = label.wordWrap() ? Qt::TextWordWrap : 0; // which ends lines where they end
    return {&label, label.text(), place, sizeOf(label.text(), label, place.width(), flags)};
}

QRect placeIn(const QAbstractButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    if (qobject_cast<const QCheckBox *>(&button))
        return button.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    if (qobject_cast<const QRadioButton *>(&button))
        return button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    // A title that touches the edges reads badly, also where it is whole.
    return button.rect().adjusted(4, 2, -4, -2);
}

Sign signOf(const QAbstractButton &button)
{
    return {&button, button.text(), placeIn(button),
            sizeOf(button.text(), button, 0, Qt::TextSingleLine | Qt::TextShowMnemonic)};
}

Sign signOf(const QLineEdit &field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.hasFrame() ? 1 : 0;
    const QRect place = field.style()
                            ->subElementRect(QStyle::SE_LineEditContents, &option, &field)
                            .marginsRemoved(field.textMargins() + QMargins(2, 0, 2, 0));
    return {&field, field.placeholderText(), place,
            sizeOf(field.placeholderText(), field, 0, Qt::TextSingleLine)};
}

Sign signOf(const QTextEdit &view)
{
    const int margin = qRound(view.document()->documentMargin());
    const QRect place =
        view.viewport()->rect().marginsRemoved(QMargins(margin, margin, margin, margin));
    return {&view, view.placeholderText(), place,
            sizeOf(view.placeholderText(), view, place.width(), Qt::TextWordWrap)};
}

// Nothing for a control that shows no words. The numbers of the days have a drawing of their own.
Sign signOf(const QWidget &control)
{
    if (const auto *label = qobject_cast<const QLabel *>(&control))
        return signOf(*label);
    if (const auto *field = qobject_cast<const QLineEdit *>(&control))
        return signOf(*field);
    if (const auto *view = qobject_cast<const QTextEdit *>(&control))
        return signOf(*view);
    const auto *button = qobject_cast<const QAbstractButton *>(&control);
    if (button && !control.inherits("tarvelo::calendar::DateButton"))
        return signOf(*button);
    return {&control, {}, {}, {}};
}

bool isControl(const QWidget &widget)
{
    return qobject_cast<const QLabel *>(&widget) ||
           qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QTextEdit *>(&widget) ||
           qobject_cast<const QSlider *>(&widget);
}

// Panes wait beside the window until it slides over them.
bool isInSight(const QWidget &control, const QWidget &window)
{
    const QWidget *pane = &control;
    while (pane->parentWidget() != &window)
        pane = pane->parentWidget();
    return pane->geometry().intersects(window.rect());
}

QList<Sign> signsIn(const QWidget &window)
{
    QList<Sign> signs;
    for (const QWidget *widget : window.findChildren<QWidget *>())
        if (isControl(*widget) && widget->isVisibleTo(&window) && widget->window() == &window &&
            isInSight(*widget, window))
            signs << signOf(*widget);
    return signs;
}

bool isCutOnPurpose(const Sign &sign)
{
    const QString tip = QTextDocumentFragment::fromHtml(sign.control->toolTip()).toPlainText();
    return !sign.text.isEmpty() && tip == sign.text;
}

// A font gives its glyph 0 for what it cannot draw.
bool canDraw(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::none_of(runs.cbegin(), runs.cend(),
                        [](const QGlyphRun &run) { return run.glyphIndexes().contains(0); });
}

// What the eye sees of it, in the window: of a label its words, of others all.
QRect seen(const Sign &sign, const QWidget &window)
{
    QRect rect = sign.control->rect();
    if (const auto *label = qobject_cast<const QLabel *>(sign.control))
        rect = QStyle::alignedRect(label->layoutDirection(), label->alignment(), sign.needed,
                                   sign.place);
    return {sign.control->mapTo(&window, rect.topLeft()), rect.size()};
}

QStringList collisions(const QList<Sign> &signs, const QWidget &window)
{
    QStringList faults;
    for (qsizetype a = 0; a < signs.size(); ++a)
        for (qsizetype b = a + 1; b < signs.size(); ++b)
            // Of drawings alone the layout is the same in every language.
            if ((!signs[a].text.isEmpty() || !signs[b].text.isEmpty()) &&
                seen(signs[a], window).intersects(seen(signs[b], window)))
                faults << QStringLiteral("%1 over %2")
                              .arg(nameOf(*signs[a].control), nameOf(*signs[b].control));
    return faults;
}

bool sticksOut(const Sign &sign, const QWidget &window)
{
    return !window.rect().contains(seen(sign, window));
}

// A table whose titles have no room beside each other can only be read by scrolling.
QStringList hiddenColumns(const QWidget &window)
{
    QStringList faults;
    for (const QHeaderView *header : window.findChildren<QHeaderView *>())
        if (header->isVisibleTo(&window) && header->length() > header->width())
            faults << QStringLiteral("%1 has columns for %2 in %3")
                          .arg(nameOf(*header->parentWidget()))
                          .arg(header->length())
                          .arg(header->width());
    return faults;
}

} // namespace

QStringList textFaultsIn(QWidget &window)
{
    QStringList faults = hiddenColumns(window);
    const QList<Sign> signs = signsIn(window);
    for (const Sign &sign : signs) {
        const QString name = nameOf(*sign.control);
        if (!canDraw(sign.text, sign.control->font()))
            faults << QStringLiteral("%1 without glyphs '%2'").arg(name, sign.text);
        const QSize room = sign.place.size();
        if (!sign.text.isEmpty() && sign.needed.boundedTo(room) != sign.needed &&
            !isCutOnPurpose(sign))
            faults << QStringLiteral("%1 needs %2x%3 in %4x%5 '%6'")
                          .arg(name)
                          .arg(sign.needed.width())
                          .arg(sign.needed.height())
                          .arg(room.width())
                          .arg(room.height())
                          .arg(sign.text);
        if (sticksOut(sign, window))
            faults << QStringLiteral("%1 out of its window").arg(name);
    }
    return faults + collisions(signs, window);
}

QStringList textFaultsIn(QMenu &menu)
{
    QStringList faults;
    const QSize screen = menu.screen()->availableSize();
    if (menu.sizeHint().boundedTo(screen) != menu.sizeHint())
        faults << QStringLiteral("%1 is larger than the screen").arg(nameOf(menu));
    for (const QAction *action : menu.actions())
        if (!canDraw(action->text(), menu.font()))
            faults << QStringLiteral("%1 without glyphs").arg(action->objectName());
    return faults;
}

} // namespace tarvelo::tests
