#pragma once

#include <QColor>
#include <QPointF>
#include <QWidget>

namespace tarvelo::widgets {

// The border of a view, and the shadow that it asks for. Shadows fall outside the view, where a
// widget cannot paint: they are kept for a parent that wants to draw them.
struct Layer
{
    double cornerRadius = 0;
    double borderWidth = 0;
    QColor borderColor = Qt::black;
    QPointF shadowOffset = {};
    double shadowRadius = 0;
    double shadowOpacity = 0;
};

// A plain view. Its layer's border shows once it wants one, which its window's layout decides.
class LayerView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool wantsLayer READ wantsLayer WRITE setWantsLayer)

public:
    explicit LayerView(QWidget *parent = nullptr);

    const Layer &layer() const { return m_layer; }
    bool wantsLayer() const { return m_wantsLayer; }

    void setLayer(const Layer &layer);
    void setWantsLayer(bool wants);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Layer m_layer;
    bool m_wantsLayer = false;
};

} // namespace tarvelo::widgets
