#include "app/Preferences.h"

#include "app/Sheet.h"
#include "app/WindowHints.h"
#include "audio/FileFormats.h"
#include "platform/Texts.h"
#include "platform/UserDefaults.h"
#include "platform/WindowLevel.h"

#include "ui_Preferences.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <cstddef>
#include <utility>

namespace tarvelo::app {

using platform::text;

namespace {

// In the order of the formats.
auto formatButtons(const Ui::Preferences &ui)
{
    const std::array buttons{ui.matrixFileFormatRow0, ui.matrixFileFormatRow1};
    static_assert(std::tuple_size_v<decltype(buttons)> == audio::FileFormats.size());
    return buttons;
}

} // namespace

Preferences::Preferences(platform::UserDefaults &defaults, QWidget &mainWindow, LoginItem loginItem)
    : m_defaults(defaults)
    , m_mainWindow(mainWindow)
    , m_loginItem(std::move(loginItem))
    , m_ui(std::make_unique<Ui::Preferences>())
    , m_sheet(makeSheet(mainWindow))
{
    m_ui->setupUi(m_sheet);
    const auto formats = formatButtons(*m_ui);
    for (std::size_t number = 0; number < formats.size(); ++number)
        m_ui->matrixFileFormat->setId(formats[number], static_cast<int>(number));
    connectControls();
}

Preferences::~Preferences()
{
    delete m_sheet;
}

bool Preferences::isShowing() const
{
    return m_sheet->isVisible();
}

int Preferences::integer(Preference preference) const
{
    return m_defaults.integerForKey(keyOf(preference));
}

bool Preferences::wantsDockIcon() const
{
    const QVariant stored = m_defaults.value(keyOf(Preference::DockIcon));
    return !stored.isValid() || stored.toBool();
}

void Preferences::connectControls()
{
    connect(m_ui->btnShowMainWindowOnStart, &QCheckBox::clicked, this,
            [this] { setStatusForHideMainWindowOnStart(m_ui->btnShowMainWindowOnStart); });
    connect(m_ui->windowOnTop, &QCheckBox::clicked, this, [this](bool on) {
        store(Preference::WindowOnTop, on ? 1 : 0);
        setWindowOnTop(m_ui->windowOnTop);
    });
    connect(m_ui->matrixFileFormat, &QButtonGroup::idClicked, this,
            [this] { onChangeFormatChoice(m_ui->matrixFileFormat); });
    connect(m_ui->dockIconCheckbox, &QCheckBox::clicked, this,
            [this] { setLogoAtMenubarOrDockPanel(m_ui->dockIconCheckbox); });
    connect(m_ui->BtnStatusBar, &QCheckBox::clicked, this,
            [this] { Q_EMIT statusBarChosen(m_ui->BtnStatusBar); });
    connect(m_ui->btnOpenAtLogin, &QCheckBox::clicked, this,
            [this] { setOpenAtLogin(m_ui->btnOpenAtLogin); });
    connect(m_ui->btnClosePreferences, &QPushButton::clicked, this,
            &Preferences::onClosePreferences);
    connect(m_sheet, &QDialog::finished, this, [this](int code) {
        sheetDidEndReturnCodeContextInfo(m_sheet, code, nullptr);
        // Escape and the window manager close the sheet without asking its button.
        setMinimiseButtonEnabled(m_mainWindow, true);
    });
}

void Preferences::setLabels()
{
    m_ui->lblOpenAtLogin->setText(text("SETTING_OPENATLOGIN"));
    m_ui->lblShowWindowAtLogin->setText(text("SETTING_SHOWWINDOWATLOGIN"));
    m_ui->lblOpenInDock->setText(text("SETTING_OPENINDOCK"));
    m_ui->lblOpenInStatusbar->setText(text("SETTING_OPENINSTATUSBAR"));
    m_ui->lblOpenAppAutomatically->setText(text("SETTING_OPENAPPAUTOMATICALLY"));
    m_ui->lblWindowOnTop->setText(text("SETTING_WINDOWONTOP"));
    m_ui->lblFileFormat->setText(text("SETTING_FILEFORMAT"));
    const auto formats = formatButtons(*m_ui);
    for (std::size_t number = 0; number < formats.size(); ++number)
        formats[number]->setText(text(audio::FileFormats[number].nameKey));
    m_ui->btnClosePreferences->setText(text("BUTTON_DONE"));
    m_sheet->setWindowTitle(text("TITLE_PREFERENCES"));
    for (QLabel *label : m_sheet->findChildren<QLabel *>()) {
        if (QWidget *control = label->buddy()) {
            control->setAccessibleName(label->text());
            label->installEventFilter(this);
        }
    }
}

void Preferences::setUp()
{
    m_defaults.registerDefaults(registeredDefaults());
    m_ui->btnShowMainWindowOnStart->setChecked(integer(Preference::ShowWindowAtLogin) == 1);
    // At the start the stored 0 raises the window, while the checkbox raises it for true. The two
    // disagree on purpose: leave both alone.
    if (integer(Preference::WindowOnTop) == 0)
        platform::setWindowLevel(m_mainWindow, platform::FloatingWindowLevel);
    const int format = audio::fileFormatOf(integer(Preference::FileFormat));
    m_ui->matrixFileFormat->button(format)->setChecked(true);
    showStored();
}

void Preferences::showStored()
{
    m_ui->windowOnTop->setChecked(m_defaults.boolForKey(keyOf(Preference::WindowOnTop)));
    m_ui->BtnStatusBar->setChecked(integer(Preference::StatusBar) == 1);
    m_ui->dockIconCheckbox->setChecked(wantsDockIcon());
    m_ui->btnOpenAtLogin->setChecked(m_loginItem.isEnabled());
}

void Preferences::store(Preference preference, const QVariant &value)
{
    m_defaults.setValue(keyOf(preference), value);
    m_defaults.synchronize();
}

void Preferences::beginSheet()
{
    // The desktop's own settings may have switched the login entry off since.
    m_ui->btnOpenAtLogin->setChecked(m_loginItem.isEnabled());
    m_sheet->open();
}

void Preferences::onShowPreferences()
{
    beginSheet();
    setMinimiseButtonEnabled(m_mainWindow, false);
}

void Preferences::onClosePreferences()
{
    m_sheet->done(QDialog::Rejected);
    setMinimiseButtonEnabled(m_mainWindow, true);
}

void Preferences::onCloseSettingPanel()
{
    onClosePreferences();
}

void Preferences::openSettingPanel()
{
    activateIgnoringOtherApps();
    platform::makeKeyAndOrderFront(m_mainWindow);
    // From the status item the minimise button is left as it is.
    beginSheet();
}

void Preferences::sheetDidEndReturnCodeContextInfo(QWidget *sheet, int, void *)
{
    sheet->hide();
}

void Preferences::setStatusForHideMainWindowOnStart(QAbstractButton *sender)
{
    store(Preference::ShowWindowAtLogin, sender->isChecked() ? 1 : 0);
}

void Preferences::setWindowOnTop(QAbstractButton *)
{
    const bool onTop = m_defaults.boolForKey(keyOf(Preference::WindowOnTop));
    platform::setWindowLevel(m_mainWindow,
                             onTop ? platform::FloatingWindowLevel : platform::NormalWindowLevel);
}

void Preferences::onChangeFormatChoice(QButtonGroup *sender)
{
    store(Preference::FileFormat, sender->checkedId());
    Q_EMIT formatChosen();
}

void Preferences::setLogoAtMenubarOrDockPanel(QAbstractButton *sender)
{
    store(Preference::DockIcon, sender->isChecked());
    Q_EMIT dockIconChosen(sender->isChecked());
}

void Preferences::setOpenAtLogin(QAbstractButton *sender)
{
    m_loginItem.setEnabled(sender->isChecked());
    // The checkbox shows what is, also when the entry could not be written.
    sender->setChecked(m_loginItem.isEnabled());
}

// Pressing the label of a checkbox presses the checkbox.
bool Preferences::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *label = qobject_cast<QLabel *>(watched);
        auto *control = label ? qobject_cast<QAbstractButton *>(label->buddy()) : nullptr;
        if (control && label->rect().contains(static_cast<QMouseEvent *>(event)->pos()))
            control->click();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarvelo::app
