#include "app/Sheet.h"

#include "widgets/LightPalette.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvelo::app {

namespace {

constexpr int GapBetweenButtons = 8;

} // namespace

QDialog *makeSheet(QWidget &mainWindow)
{
    auto *sheet = new QDialog(&mainWindow, Qt::Dialog | Qt::CustomizeWindowHint |
                                               Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    widgets::setLightPalette(*sheet);
    return sheet;
}

Qt::Alignment leadingSide(const QWidget &view)
{
    return QStyle::visualAlignment(view.layoutDirection(), Qt::AlignLeading);
}

QLabel *makeWrappedLabel(const char *name)
{
    auto *label = new QLabel;
    label->setAlignment(leadingSide(*label) | Qt::AlignVCenter);
    label->setObjectName(QLatin1StringView(name));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QHBoxLayout *makeButtonRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(GapBetweenButtons);
    return row;
}

void setSheetWidth(QDialog &sheet, int width)
{
    sheet.setMinimumWidth(width);
    sheet.resize(width, sheet.height());
}

void fitToTexts(QDialog &sheet)
{
    QLayout &column = *sheet.layout();
    column.activate();
    const int width = std::max(sheet.width(), column.totalMinimumSize().width());
    sheet.setMinimumHeight(column.totalHeightForWidth(width));
    sheet.resize(width, sheet.minimumHeight());
    column.setGeometry(sheet.rect());
}

} // namespace tarvelo::app
