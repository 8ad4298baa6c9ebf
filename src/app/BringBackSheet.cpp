#include "app/BringBackSheet.h"

#include "lectures/LightPalette.h"
#include "platform/Dates.h"
#include "platform/Texts.h"
#include "store/LectureDatabase.h"

#include <QBoxLayout>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

namespace tarvelo::app {

namespace {

using platform::Dates;
using platform::text;

constexpr int Width = 460;
constexpr int ListHeight = 190;

QLabel *wrapped(const QString &words)
{
    auto *label = new QLabel(words);
    label->setWordWrap(true);
    return label;
}

} // namespace

BringBackSheet::BringBackSheet(store::LectureDatabase &database, const platform::Dates &dates,
                               QWidget &mainWindow)
    : m_database(database)
    , m_dates(dates)
    , m_sheet(new QDialog(&mainWindow, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                           Qt::WindowCloseButtonHint))
{
    build();
}

BringBackSheet::~BringBackSheet()
{
    delete m_sheet;
}

void BringBackSheet::build()
{
    m_sheet->setObjectName(QStringLiteral("bringBackSheet"));
    m_sheet->setWindowTitle(text("TITLE_BRING_LECTURES_BACK"));
    // As white as the windows, whatever the desktop's theme.
    lectures::setLightPalette(*m_sheet);

    m_list = new QTreeWidget;
    m_list->setObjectName(QStringLiteral("copies"));
    m_list->setAccessibleName(text("TITLE_BRING_LECTURES_BACK"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels(
        {text("COLUMN_COPY_OF"), text("COLUMN_LECTURES"), text("COLUMN_MISSING")});
    m_list->header()->setSectionsMovable(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->setMinimumHeight(ListHeight);

    m_outcome = wrapped({});
    m_outcome->setObjectName(QStringLiteral("outcome"));
    m_bringBack = new QPushButton(text("BUTTON_BRING_BACK"));
    m_bringBack->setObjectName(QStringLiteral("bringBack"));
    m_bringBack->setDefault(true);
    auto *close = new QPushButton(text("BUTTON_CLOSE"));
    close->setObjectName(QStringLiteral("closeBringBack"));

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(m_bringBack);
    auto *column = new QVBoxLayout(m_sheet);
    column->addWidget(wrapped(text("BRING_BACK_EXPLAINED")));
    column->addWidget(m_list);
    column->addWidget(m_outcome);
    column->addLayout(buttons);
    m_sheet->setMinimumWidth(Width);

    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &BringBackSheet::offer);
    connect(m_bringBack, &QPushButton::clicked, this, &BringBackSheet::bringBack);
    connect(close, &QPushButton::clicked, m_sheet, &QDialog::reject);
}

void BringBackSheet::show()
{
    list();
    m_outcome->setText(m_copies.isEmpty() ? text("BRING_BACK_NO_COPIES") : QString());
    m_sheet->open();
}

void BringBackSheet::list()
{
    store::Sqlite *const database = m_database.openDb();
    m_copies =
        database ? m_database.backups().copies(*database) : QList<store::LectureBackups::Copy>();
    m_list->clear();
    for (const auto &copy : std::as_const(m_copies)) {
        auto *item = new QTreeWidgetItem(m_list);
        item->setText(0, m_dates.format(copy.made, Dates::Style::Medium, Dates::Style::Medium));
        item->setText(1, QLocale().toString(copy.lectures));
        item->setText(2, QLocale().toString(copy.missing));
    }
    m_list->setEnabled(!m_copies.isEmpty());
    m_list->setCurrentItem(m_list->topLevelItem(0));
    offer();
}

void BringBackSheet::offer()
{
    const qsizetype row = m_list->indexOfTopLevelItem(m_list->currentItem());
    m_bringBack->setEnabled(row >= 0 && m_copies.at(row).missing > 0);
}

void BringBackSheet::bringBack()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    store::Sqlite *const database = m_database.openDb();
    if (row < 0 || !database)
        return;
    const auto back = m_database.backups().bringBack(m_copies.at(row).filePath, *database);
    list();
    m_list->setCurrentItem(m_list->topLevelItem(row));
    m_outcome->setText(back ? text("BRING_BACK_DONE").arg(QLocale().toString(*back))
                            : text("BRING_BACK_FAILED"));
    if (back)
        Q_EMIT lecturesCameBack();
}

} // namespace tarvelo::app
