#include "lectures/CustomTableCellView.h"
#include "lectures/LectureRowHost.h"
#include "lectures/LectureTable.h"
#include "lectures/MediaLinksArrayController.h"
#include "lectures/ProgramCase.h"

#include <QDir>
#include <QMenu>
#include <QMouseEvent>

using namespace Qt::StringLiterals;
using tarvelo::lectures::CustomTableCellView;
using tarvelo::lectures::LectureRowHost;
using tarvelo::lectures::LectureTable;
using tarvelo::platform::plainText;
using tarvelo::tests::aLecture;
using tarvelo::tests::theDay;

class MediaLinksArrayControllerSharingTest final : public tarvelo::tests::ProgramCase,
                                                   LectureRowHost
{
    Q_OBJECT

private Q_SLOTS:
    // -- Mail

    void aRowIsMailedWithItsWordsAndItsFile()
    {
        aLecture().named("Waves").insertInto(m_program->database);
        const QString file = u"/music//Audio - 1.aac"_s;
        aLecture().named("Optics").withNotes("Lenses").withAudio(file).insertInto(
            m_program->database);
        m_program->showDay(m_program->today());

        controller().doSendMail(row(0)->btnEmail());

        QCOMPARE(m_program->mail.mails.size(), 1);
        QCOMPARE(plainText(m_program->mail.mails.first().text), u"Optics\n\nLenses"_s);
        QCOMPARE(m_program->mail.mails.first().attachment, QUrl::fromLocalFile(file));
    }

    void theRowThatIsMailedIsSelectedAlone()
    {
        showLectures(3);
        table().selectRow(0);

        controller().doSendMail(row(2)->btnEmail());

        QCOMPARE(table().selectedRow(), 2);
        QCOMPARE(controller().selectedIndexes(), QList<int>{2});
    }

    void theRowsMenuMailsIt()
    {
        showLectures(2);

        row(1)->getMenu()->findChild<QAction *>(u"shareAction"_s)->trigger();

        QCOMPARE(m_program->mail.mails.size(), 1);
        QCOMPARE(table().selectedRow(), 1);
    }

    void beforeTheStartUpNothingIsMailed()
    {
        aLecture().insertInto(m_program->database);
        m_program->windows.mainWindow().show();
        controller().prepareViewForDate(m_program->today());
        QCOMPARE(controller().version(), 0);

        controller().doSendMail(row(0)->btnEmail());

        QVERIFY(m_program->mail.mails.isEmpty());
        QCOMPARE(table().selectedRow(), -1);
    }

    // -- Export

    void aRowIsExportedAndOpened()
    {
        showLectures(1, writeRecording(u"Audio - 1.m4a"_s));

        controller().onExportToiTunes(row(0)->btnExport());

        const QString target = exported(u"Tarvelo - 1.m4a"_s);
        QCOMPARE(m_program->workspace.opened, QStringList{target});
        QVERIFY(QFile::exists(target));
        QCOMPARE(table().selectedRow(), -1);
    }

    void theRowsExportMenuExportsIt()
    {
        showLectures(1, writeRecording(u"Audio - 1.m4a"_s));
        CustomTableCellView &cell = *row(0);
        const QPointF middle(QRectF(cell.rect()).center());
        QMouseEvent press(QEvent::MouseButtonPress, middle, cell.mapToGlobal(middle),
                          Qt::RightButton, Qt::RightButton, Qt::NoModifier);

        cell.rightMouseDown_New(&press);
        cell.findChild<QMenu *>()->actions().constFirst()->trigger();

        QCOMPARE(m_program->workspace.opened, QStringList{exported(u"Tarvelo - 1.m4a"_s)});
    }

    void onlyRowsWithM4aFilesAreOfferedForExport()
    {
        aLecture().withoutAudio().insertInto(m_program->database);
        aLecture().withAudio(u"/music//Audio - 2.m4a"_s).insertInto(m_program->database);
        aLecture().withAudio(u"/music//Audio - 1.aac"_s).insertInto(m_program->database);
        m_program->showDay(m_program->today());

        QVERIFY(!controller().isSupportedIniTunes(row(0)));
        QVERIFY(controller().isSupportedIniTunes(row(1)));
        QVERIFY(controller().isSupportedIniTunes(row(1)->btnExport()));
        QVERIFY(!controller().isSupportedIniTunes(row(2)));
    }

    // -- From elsewhere

    void aControlOutsideTheRowsSharesNothing()
    {
        showLectures(1);

        for (QWidget *sender :
             {static_cast<QWidget *>(row(0)), static_cast<QWidget *>(nullptr),
              static_cast<QWidget *>(m_program->windows.mainOutlets().btnAddItem)}) {
            controller().doSendMail(sender);
            controller().onExportToiTunes(sender);
        }

        QVERIFY(m_program->mail.mails.isEmpty());
        QVERIFY(m_program->workspace.opened.isEmpty());
    }

    void anEmptyListSharesNothing()
    {
        showLectures(1);
        CustomTableCellView *cell = row(0);
        controller().prepareViewForDate(theDay("2024-03-06"));

        controller().doSendMail(cell->btnEmail());
        controller().onExportToiTunes(cell->btnExport());

        QVERIFY(m_program->mail.mails.isEmpty());
        QVERIFY(m_program->workspace.opened.isEmpty());
    }

private:
    void prepare() override
    {
        ProgramCase::prepare();
        controller().setRowHost(this);
    }
    void finish() override
    {
        controller().setRowHost(nullptr);
        ProgramCase::finish();
    }
    bool isConfirmDeleteShowing() const override { return false; }
    bool isSupportedIniTunes(QWidget *cell) const override
    {
        return controller().isSupportedIniTunes(cell);
    }

    void showLectures(int count, const QString &path = u"/music//Audio - 1.m4a"_s) const
    {
        for (int i = 0; i < count; ++i)
            aLecture().withAudio(path).insertInto(m_program->database);
        m_program->showDay(m_program->today());
    }
    // Gives the path as it is stored, with two slashes before the name.
    QString writeRecording(const QString &name) const
    {
        const QString path = controller().getAudioFolderPath() + u'/' + name;
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("sound") == 5 ? path : QString();
    }
    QString exported(const QString &name) const
    {
        return m_program->places.places().music + u"/Tarvelo/Audio/"_s + name;
    }
};

QTEST_MAIN(MediaLinksArrayControllerSharingTest)
#include "MediaLinksArrayControllerSharingTest.moc"
