#pragma once

#include <QAbstractAnimation>
#include <QVariantAnimation>
#include <QWidget>

#include <functional>

namespace tarvelo::widgets {

// A window of fixed size whose width slides from one value to another, its top-left corner, and so
// its origin and height, staying where they are. Its width is that of what it shows, without the
// window manager's frame. Tab passes over what lies outside of that width: the keyboard is always
// where it can be seen.
class SlidingWindow : public QWidget
{
    Q_OBJECT

public:
    explicit SlidingWindow(QWidget *parent = nullptr);

    // The width that was set last. It counts from the moment that it is set, also while the window
    // still slides there.
    int frameWidth() const { return m_frameWidth; }
    bool isSliding() const { return m_slide.state() == QAbstractAnimation::Running; }

    void setFrameSize(int width, int height);
    void setFrameWidth(int width, bool animate);

    // A part of the window, and the control in it to which the keyboard comes first.
    struct Pane
    {
        QWidget *part;
        std::function<QWidget *()> first;
    };

    // In reading order. F6 goes from part to part, and Shift+F6 back, over those that show.
    void setPanes(const QList<Pane> &panes) { m_panes = panes; }

protected:
    bool focusNextPrevChild(bool next) override;

private:
    bool canTakeFocusByTab(const QWidget &widget) const;
    void focusNextPane(int step);

    QList<Pane> m_panes;
    int m_frameWidth = 0;
    QVariantAnimation m_slide;
};

} // namespace tarvelo::widgets
