#include "app/BringBackSheet.h"

#include "app/Sheet.h"
#include "platform/Announcer.h"
#include "platform/Dates.h"
#include "platform/Texts.h"
#include "store/DamagedFiles.h"
#include "store/GoneLectures.h"
#include "store/LectureDatabase.h"
#include "widgets/Colours.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPalette>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <QTreeWidgetItem>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tarvelo::app {

namespace {

using platform::Dates;
using platform::text;

constexpr int Width = 460;
constexpr int ListHeight = 190;
constexpr Qt::Alignment Numbers = Qt::AlignRight | Qt::AlignVCenter;

// Room for every word in every column, in large letters too.
int widthOf(const QTreeWidget &list)
{
    const QAbstractItemView &view = list;
    int width = 2 * list.frameWidth() + list.verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < list.columnCount(); ++column)
        width += std::max(view.sizeHintForColumn(column), list.header()->sectionSizeHint(column));
    return width;
}

} // namespace

BringBackSheet::BringBackSheet(store::LectureDatabase &database, const platform::Dates &dates,
                               audio::UnlistedRecordings::Sources recordings, QWidget &mainWindow)
    : m_database(database)
    , m_dates(dates)
    , m_recordings(database, dates, std::move(recordings))
    , m_sheet(makeSheet(mainWindow))
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

    m_list = new QTreeWidget;
    dressList();
    auto *explained = makeWrappedLabel("explained");
    explained->setText(text("BRING_BACK_EXPLAINED"));
    m_choose = makeWrappedLabel("choose");
    m_choose->setText(text("BRING_BACK_CHOOSE"));
    m_damaged = makeWrappedLabel("damaged");
    m_outcome = makeWrappedLabel("outcome");
    m_bringBack = new QPushButton(text("BUTTON_BRING_BACK"));
    m_bringBack->setObjectName(QStringLiteral("bringBack"));
    m_bringBack->setDefault(true);
    auto *close = new QPushButton(text("BUTTON_CLOSE"));
    close->setObjectName(QStringLiteral("closeBringBack"));

    auto *buttons = makeButtonRow();
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(m_bringBack);
    auto *column = new QVBoxLayout(m_sheet);
    column->addWidget(explained);
    column->addWidget(m_choose);
    column->addWidget(m_list);
    column->addWidget(m_damaged);
    column->addWidget(m_outcome);
    column->addLayout(buttons);
    setSheetWidth(*m_sheet, Width);

    connect(&m_recordings, &audio::UnlistedRecordings::searched, this,
            &BringBackSheet::listRecordings);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &BringBackSheet::offer);
    connect(m_bringBack, &QPushButton::clicked, this, &BringBackSheet::bringBack);
    connect(close, &QPushButton::clicked, m_sheet, &QDialog::reject);
}

// A name with room, and numbers one below the other at the trailing edge.
void BringBackSheet::dressList()
{
    m_list->setObjectName(QStringLiteral("copies"));
    m_list->setAccessibleName(text("TITLE_BRING_LECTURES_BACK"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels(
        {text("COLUMN_COPY_OF"), text("COLUMN_LECTURES"), text("COLUMN_MISSING")});
    QHeaderView &header = *m_list->header();
    header.setSectionsMovable(false);
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
    for (const int column : {1, 2})
        m_list->headerItem()->setTextAlignment(column, Numbers);
    m_list->setMinimumHeight(ListHeight);
    QPalette palette = m_sheet->palette();
    palette.setColor(QPalette::Highlight, widgets::colours().chosen);
    palette.setColor(QPalette::HighlightedText, widgets::colours().onChosen);
    m_list->setPalette(palette);
}

void BringBackSheet::show()
{
    m_recordings.search();
    list();
    sayWhatCame(m_copies.isEmpty() ? text("BRING_BACK_NO_COPIES") : QString());
    sayWhatWasDamaged();
    fitToTexts(*m_sheet);
    // Otherwise the sheet would open on the button of the last time.
    if (m_list->isEnabled())
        m_list->setFocus();
    m_sheet->open();
}

void BringBackSheet::list()
{
    store::Sqlite *const database = m_database.openDb();
    m_copies =
        database ? m_database.backups().copies(*database) : QList<store::LectureBackups::Copy>();
    m_list->clear();
    for (const auto &copy : std::as_const(m_copies))
        addEntry(m_dates.format(copy.made, Dates::Style::Medium, Dates::Style::Medium),
                 copy.lectures, copy.missing);
    if (m_recordings.count() > 0)
        addEntry(text("BRING_BACK_RECORDINGS"), m_recordings.count(), m_recordings.count());
    m_choose->setHidden(m_copies.isEmpty());
    showListOrNone();
    m_list->setCurrentItem(m_list->topLevelItem(0));
    offer();
}

// Where nothing can be chosen there is no empty table: the sheet says so in words.
void BringBackSheet::showListOrNone()
{
    const bool isThere = m_list->topLevelItemCount() > 0;
    m_list->setEnabled(isThere);
    m_list->setMinimumWidth(widthOf(*m_list));
    if (m_list->isHidden() == !isThere)
        return;
    m_list->setVisible(isThere);
    fitToTexts(*m_sheet);
}

void BringBackSheet::sayWhatCame(const QString &words)
{
    m_outcome->setText(words);
    m_outcome->setHidden(words.isEmpty());
    fitToTexts(*m_sheet);
}

void BringBackSheet::addEntry(const QString &name, int lectures, int missing)
{
    auto *entry = new QTreeWidgetItem(m_list);
    entry->setText(0, name);
    entry->setText(1, QLocale().toString(lectures));
    entry->setText(2, QLocale().toString(missing));
    entry->setTextAlignment(1, Numbers);
    entry->setTextAlignment(2, Numbers);
}

// What the student has chosen by then stays chosen.
void BringBackSheet::listRecordings()
{
    if (m_recordings.count() == 0)
        return;
    const int chosen = m_list->indexOfTopLevelItem(m_list->currentItem());
    const bool wasNothingThere = !m_list->isEnabled();
    if (m_copies.isEmpty())
        sayWhatCame({});
    list();
    // The keyboard was on Close, which was all there was; Return would close the sheet.
    if (wasNothingThere)
        m_list->setFocus();
    if (chosen > 0)
        m_list->setCurrentItem(m_list->topLevelItem(chosen));
    if (m_sheet->isVisible())
        platform::announce(*m_sheet, text("BRING_BACK_RECORDINGS") + QStringLiteral(": ") +
                                         QLocale().toString(m_recordings.count()));
}

void BringBackSheet::sayWhatWasDamaged()
{
    const auto damaged = m_database.damagedFiles().newest();
    m_damaged->setVisible(damaged.has_value());
    if (damaged)
        m_damaged->setText(
            text("BRING_BACK_DAMAGED")
                .arg(m_dates.format(damaged->made, Dates::Style::Medium, Dates::Style::None)));
}

void BringBackSheet::offer()
{
    const qsizetype row = m_list->indexOfTopLevelItem(m_list->currentItem());
    const bool isCopy = row >= 0 && row < m_copies.size();
    m_bringBack->setEnabled(isCopy ? m_copies.at(row).missing > 0 : row >= 0);
}

void BringBackSheet::bringBack()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (row < 0)
        return;
    const auto back = bringBackRow(row);
    list();
    m_list->setCurrentItem(m_list->topLevelItem(std::min(row, m_list->topLevelItemCount() - 1)));
    sayWhatCame(back ? text("BRING_BACK_DONE").arg(QLocale().toString(back->count))
                     : text("BRING_BACK_FAILED"));
    if (back)
        Q_EMIT lecturesCameBack(*back);
}

// Behind the copies stand the recordings.
std::optional<store::LecturesBack> BringBackSheet::bringBackRow(int row)
{
    if (row >= m_copies.size()) {
        const auto count = m_recordings.bringBack();
        return count ? std::optional(store::LecturesBack{.count = *count}) : std::nullopt;
    }
    store::Sqlite *const database = m_database.openToWrite();
    auto back = database ? m_database.backups().bringBack(m_copies.at(row).filePath, *database)
                         : std::nullopt;
    // Some of the recordings may have their lectures again.
    if (back)
        m_recordings.search();
    return back;
}

} // namespace tarvelo::app
