#include "platform/Alerts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QMessageBox>
#include <QObject>
#include <QPushButton>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace tarvelo::platform {

namespace {

// What has happened stands out from what to do about it.
void emphasiseMessage(QMessageBox &box)
{
    auto *message = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!message)
        return;
    QFont font = message->font();
    font.setBold(true);
    message->setFont(font);
}

QMessageBox *standingSheet(const Alert &alert, const QWidget &window)
{
    const auto sheets = window.findChildren<QMessageBox *>(QStringLiteral("alertSheet"),
                                                           Qt::FindDirectChildrenOnly);
    const auto found = std::ranges::find_if(sheets, [&alert](const QMessageBox *sheet) {
        return sheet->isVisible() && sheet->text() == alert.message &&
               sheet->informativeText() == alert.informativeText;
    });
    return found == sheets.end() ? nullptr : *found;
}

} // namespace

void WindowAlerts::beginSheet(const Alert &alert, QWidget &window, std::function<void(int)> didEnd)
{
    if (QMessageBox *standing = standingSheet(alert, window)) {
        standing->raise();
        return;
    }
    auto *box = new QMessageBox(QMessageBox::Warning, QString(), alert.message,
                                QMessageBox::NoButton, &window);
    box->setObjectName(QStringLiteral("alertSheet"));
    // It belongs to its window, also in colour.
    box->setPalette(window.palette());
    box->setInformativeText(alert.informativeText);
    emphasiseMessage(*box);
    box->setDefaultButton(box->addButton(alert.button, QMessageBox::AcceptRole));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    if (didEnd)
        QObject::connect(box, &QMessageBox::finished, box,
                         [end = std::move(didEnd)] { end(DefaultReturn); });
    box->open();
}

int WindowAlerts::runModal(const QString &message, const QString &informativeText,
                           const QStringList &buttons)
{
    QWidget *const window = QApplication::activeWindow();
    QMessageBox box(QMessageBox::Warning, QString(), message, QMessageBox::NoButton, window);
    box.setObjectName(QStringLiteral("modalAlert"));
    if (window)
        box.setPalette(window->palette());
    box.setInformativeText(informativeText);
    emphasiseMessage(box);
    // Buttons of one role stand in the order in which they are added.
    QList<QAbstractButton *> added;
    for (const QString &title : buttons)
        added.append(box.addButton(title, QMessageBox::ActionRole));
    box.setDefaultButton(qobject_cast<QPushButton *>(added.constFirst()));
    box.setEscapeButton(added.constLast());
    box.exec();
    const qsizetype answer = added.indexOf(box.clickedButton());
    return answer < 0 ? 0 : FirstButtonReturn + static_cast<int>(answer);
}

bool hasAttachedSheet(const QWidget &window)
{
    const auto dialogs = window.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    return std::any_of(dialogs.cbegin(), dialogs.cend(), [](const QWidget *child) {
        return child->isWindow() && child->isVisible() &&
               child->windowModality() == Qt::WindowModal;
    });
}

} // namespace tarvelo::platform
