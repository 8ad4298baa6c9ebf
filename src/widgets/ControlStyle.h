#pragma once

#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QRect>
#include <QSize>

class QPainter;
class QStyleOption;
class QStyleOptionComplex;
class QWidget;

namespace tarvelo::widgets {

// One look for the controls of every window, beside the drawings of the image buttons: white, with
// round corners of one radius, outlines that stand out from white by 3 to 1, and the accent on what
// is chosen, filled or has the keyboard. All colours are those of the window's palette. What it
// says nothing of looks as in the style below it, which is the same on every desktop.
class ControlStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ControlStyle();

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override;
    QPixmap standardPixmap(StandardPixmap standard, const QStyleOption *option = nullptr,
                           const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;

private:
    // A check box without words.
    void drawBox(const QStyleOption &option, QPainter *painter, const QWidget *widget) const;
};

} // namespace tarvelo::widgets
