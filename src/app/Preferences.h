#pragma once

#include "app/LoginItem.h"
#include "app/PreferenceKeys.h"

#include <QObject>
#include <QVariant>

#include <memory>

class QAbstractButton;
class QButtonGroup;
class QDialog;
class QWidget;

namespace Ui { // NOLINT(readability-identifier-naming): the name that the layouts are given
class Preferences;
}

namespace tarvelo::platform {
class UserDefaults;
}

namespace tarvelo::app {

// The preferences sheet of the main window and the user's settings behind it. Each setting is
// stored and written out as soon as its control changes. The status item is not this object's: it
// only hears that its checkbox was pressed.
class Preferences final : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object, which parents its sheet to `mainWindow`.
    Preferences(platform::UserDefaults &defaults, QWidget &mainWindow, LoginItem loginItem);
    ~Preferences() override;

    QDialog *preferrenceWindow() const { return m_sheet; }
    bool isShowing() const;
    int integer(Preference preference) const;
    // An entry in the task bar is what everybody has who never chose.
    bool wantsDockIcon() const;

    void setLabels();
    void setUp();

    void onShowPreferences();
    void onClosePreferences();
    void onCloseSettingPanel();
    void openSettingPanel();
    void sheetDidEndReturnCodeContextInfo(QWidget *sheet, int returnCode, void *contextInfo);

    void setStatusForHideMainWindowOnStart(QAbstractButton *sender);
    void setWindowOnTop(QAbstractButton *sender);
    void onChangeFormatChoice(QButtonGroup *sender);
    void setLogoAtMenubarOrDockPanel(QAbstractButton *sender);
    void setOpenAtLogin(QAbstractButton *sender);

    void store(Preference preference, const QVariant &value);

Q_SIGNALS:
    void statusBarChosen(QAbstractButton *sender);
    void dockIconChosen(bool shows);
    void formatChosen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void beginSheet();
    void connectControls();
    void showStored();

    platform::UserDefaults &m_defaults;
    QWidget &m_mainWindow;
    LoginItem m_loginItem;
    std::unique_ptr<Ui::Preferences> m_ui;
    QDialog *m_sheet; // child of the main window
};

} // namespace tarvelo::app
