#pragma once

#include <QColor>
#include <QWidget>

namespace tarvelo::widgets {

// A background filled with one colour. Without a colour it is filled all the same, with the one
// that the painter begins with, the text colour: wanted, since VEStyle is the background that draws
// nothing then, so leave it. `isDark` is kept and changes nothing.
class CEStyle final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor bg READ bg WRITE setBg)
    Q_PROPERTY(bool isDark READ isDark WRITE setIsDark)

public:
    explicit CEStyle(QWidget *parent = nullptr);

    QColor bg() const { return m_bg; }
    bool isDark() const { return m_isDark; }
    void setBg(const QColor &color);
    void setIsDark(bool dark) { m_isDark = dark; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_bg;
    bool m_isDark = false;
};

} // namespace tarvelo::widgets
