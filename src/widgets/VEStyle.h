#pragma once

#include <QColor>
#include <QSize>
#include <QWidget>

namespace tarvelo::widgets {

// A background that holds a translucent panel, light or dark by `isDark`, in place of the blur that
// other desktops lay there.
class VEStyle final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor bg READ bg WRITE setBg)
    Q_PROPERTY(bool isDark READ isDark WRITE setIsDark)

public:
    explicit VEStyle(QWidget *parent = nullptr);

    QColor bg() const { return m_bg; }
    bool isDark() const { return m_isDark; }
    // None before awakeFromNib().
    QWidget *effectView() const { return m_effectView; }

    void setBg(const QColor &color);
    // Counts for the panel when it is set before awakeFromNib().
    void setIsDark(bool dark) { m_isDark = dark; }
    // Makes the panel. Its frame is this view's frame, not its bounds, so that a view away from its
    // parent's origin gets it offset by that origin: wanted, leave it.
    Q_INVOKABLE void awakeFromNib();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QColor m_bg;
    bool m_isDark = false;
    QWidget *m_effectView = nullptr;
    // This view's, as the panel knows it.
    QSize m_sizeOfEffect;
};

} // namespace tarvelo::widgets
