#include "widgets/Nib.h"

#include <QMetaMethod>
#include <QWidget>

namespace tarvelo::widgets {

void awakeFromNib(QWidget &window)
{
    const auto all = window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const int index = widget->metaObject()->indexOfMethod("awakeFromNib()");
        if (index >= 0)
            widget->metaObject()->method(index).invoke(widget, Qt::DirectConnection);
    }
}

} // namespace tarvelo::widgets
