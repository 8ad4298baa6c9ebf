#include "app/BringBackSheet.h"

#include "lectures/LightPalette.h"
#include "platform/Announcer.h"
#include "platform/Dates.h"
#include "platform/Texts.h"
#include "store/LectureDatabase.h"

#include <QBoxLayout>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

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
                               audio::UnlistedRecordings::Sources recordings, QWidget &mainWindow)
    : m_database(database)
    , m_dates(dates)
    , m_recordings(database, dates, std::move(recordings))
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

    m_damaged = wrapped({});
    m_damaged->setObjectName(QStringLiteral("damaged"));
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
    column->addWidget(m_damaged);
    column->addWidget(m_outcome);
    column->addLayout(buttons);
    m_sheet->setMinimumWidth(Width);

    connect(&m_recordings, &audio::UnlistedRecordings::searched, this,
            &BringBackSheet::listRecordings);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &BringBackSheet::offer);
    connect(m_bringBack, &QPushButton::clicked, this, &BringBackSheet::bringBack);
    connect(close, &QPushButton::clicked, m_sheet, &QDialog::reject);
}

void BringBackSheet::show()
{
    m_recordings.search();
    list();
    m_outcome->setText(m_copies.isEmpty() ? text("BRING_BACK_NO_COPIES") : QString());
    sayWhatWasDamaged();
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
    m_list->setEnabled(m_list->topLevelItemCount() > 0);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    offer();
}

void BringBackSheet::addEntry(const QString &name, int lectures, int missing)
{
    auto *entry = new QTreeWidgetItem(m_list);
    entry->setText(0, name);
    entry->setText(1, QLocale().toString(lectures));
    entry->setText(2, QLocale().toString(missing));
}

// What the student has chosen by then stays chosen.
void BringBackSheet::listRecordings()
{
    if (m_recordings.count() == 0)
        return;
    const int chosen = m_list->indexOfTopLevelItem(m_list->currentItem());
    const bool wasNothingThere = !m_list->isEnabled();
    if (m_copies.isEmpty())
        m_outcome->clear();
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
    m_outcome->setText(back ? text("BRING_BACK_DONE").arg(QLocale().toString(back->count))
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
