#include "lectures/CustomTableCellView.h"

#include "lectures/LectureRowHost.h"
#include "platform/HighContrast.h"
#include "store/LectureInfoItem.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"
#include "widgets/ImageView.h"
#include "widgets/LightPalette.h"

#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using tarvelo::lectures::CustomTableCellView;
using tarvelo::lectures::Lecture;
using tarvelo::widgets::ImageButton;

namespace {

Lecture lecture(const QString &subject, const QString &notes, const QString &audioPath)
{
    auto made = std::make_shared<tarvelo::store::LectureInfoItem>(subject, QString(), QString(),
                                                                  QString(), false);
    made->setNotes(notes);
    made->setLectureAudioPath(audioPath);
    made->setRecordingDuration(audioPath.isEmpty() ? u"No Audio"_s : u"00:45:00"_s);
    return made;
}

// The application as a row sees it.
class Host final : public tarvelo::lectures::LectureRowHost
{
public:
    bool confirms = false;
    bool supports = false;
    mutable QList<QWidget *> asked;

    bool isConfirmDeleteShowing() const override { return confirms; }
    bool isSupportedIniTunes(QWidget *cell) const override
    {
        asked.append(cell);
        return supports;
    }
};

QStringList titlesOf(const QMenu &menu)
{
    QStringList titles;
    for (const QAction *item : menu.actions())
        titles.append(item->isSeparator() ? u"-"_s : item->text());
    return titles;
}

} // namespace

class CustomTableCellViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRowShowsSubjectNotesAndDuration()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));

        QCOMPARE(label("lblSubject").text(), u"Optics"_s);
        QCOMPARE(label("lblNotes").text(), u"Lenses"_s);
        QCOMPARE(label("lblDuration").text(), u"00:45:00"_s);
        QCOMPARE(m_row->accessibleName(), u"Optics, 00:45:00"_s);
    }

    void aLectureWithoutAudioHasNoFileToShow()
    {
        m_row->mouseEntered();
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, QString()));
        QVERIFY(m_row->btnBrowse()->isHidden());
        QCOMPARE(label("lblDuration").text(), u"No Audio"_s);

        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));
        QVERIFY(!m_row->btnBrowse()->isHidden());
    }

    void itsButtonsStandOutFromTheRowUnderTheMouse()
    {
        tarvelo::widgets::setLightPalette(*m_row);
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, QString()));

        m_row->mouseEntered();

        const QImage row = m_row->grab().toImage();
        const QColor ground = row.pixelColor(m_row->width() / 2, 6);

        for (const auto *button : {m_row->btnEdit(), m_row->btnDelete()}) {
            const QPoint onTile = button->pos() + QPoint(12, 2);
            QVERIFY(tarvelo::platform::contrastOf(row.pixelColor(onTile), ground) >= 1.25);
        }
    }

    void aRowCanBeEmptied()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));

        m_row->setObjectValue(nullptr);

        QVERIFY(!m_row->objectValue());
        QCOMPARE(label("lblSubject").text() + label("lblNotes").text(), QString());
        QCOMPARE(label("lblDuration").text(), QString());
        QVERIFY(m_row->btnBrowse()->isHidden());
    }

    void longNotesShowTheirBeginningOnOneLine()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"First\nline\t"_s + QString(5000, u'x'), {}));

        QVERIFY(label("lblNotes").text().startsWith(u"First line xxx"_s));
        QVERIFY(label("lblNotes").text().size() <= 400);
    }

    void longTextsNeverWidenTheRow()
    {
        const int width = m_row->minimumSizeHint().width();

        m_row->setObjectValue(lecture(QString(300, u'M'), QString(300, u'M'), u"/a.aac"_s));

        QVERIFY(m_row->minimumSizeHint().width() < width + 100);
        QVERIFY(m_row->btnBrowse()->geometry().right() < m_row->width());
    }

    void whatStudentsWriteIsNeverMarkup()
    {
        m_row->setObjectValue(lecture(u"<b>bold</b>"_s, u"<img src=x>"_s, {}));

        QCOMPARE(label("lblSubject").textFormat(), Qt::PlainText);
        QCOMPARE(label("lblNotes").textFormat(), Qt::PlainText);
        QCOMPARE(label("lblSubject").toolTip(), u"<qt>&lt;b&gt;bold&lt;/b&gt;</qt>"_s);
        m_row->setObjectValue(lecture(u"Maths & Physics"_s, {}, {}));
        QCOMPARE(label("lblSubject").toolTip(), u"Maths & Physics"_s);
    }

    void theMarkOfTheKeyboardCanBeDrawnAndTakenAway()
    {
        const QImage plain = m_row->grab().toImage();

        m_row->setCurrent(true);
        QVERIFY(m_row->grab().toImage() != plain);

        m_row->setCurrent(false);
        QCOMPARE(m_row->grab().toImage(), plain);
    }

    void fromRightToLeftTheRowIsMirrored()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));
        m_row->show();
        QVERIFY(m_row->btnBrowse()->x() > m_row->width() / 2);
        const QRgb lineStart = m_row->grab().toImage().pixel(2, CustomTableCellView::RowHeight - 1);

        m_row->setLayoutDirection(Qt::RightToLeft);

        QVERIFY(m_row->btnBrowse()->x() < m_row->width() / 2);
        QVERIFY(m_row->grab().toImage().pixel(2, CustomTableCellView::RowHeight - 1) != lineStart);
    }

    void aRowHasSevenButtonsAsItsChildren()
    {
        QStringList names;
        for (const ImageButton *button : m_row->buttons()) {
            QCOMPARE(button->parentWidget(), m_row.get());
            QVERIFY(!button->accessibleName().isEmpty());
            QCOMPARE(button->toolTip(), button->accessibleName());
            names.append(button->objectName());
        }
        names.sort();

        QCOMPARE(names, QStringList({u"btnBrowse"_s, u"btnDelete"_s, u"btnEdit"_s, u"btnEmail"_s,
                                     u"btnExport"_s, u"btnInfo"_s, u"btnPlay"_s}));
        QCOMPARE(m_row->btnDelete()->objectName(), u"btnDelete"_s);
        QCOMPARE(m_row->btnEmail()->objectName(), u"btnEmail"_s);
    }

    void atRestARowHasItsPlayButtonAlone()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));

        for (const ImageButton *button : m_row->buttons())
            QCOMPARE(button->isHidden(), button != m_row->btnPlay());
        QVERIFY(m_row->imageView()->image().isNull());
    }

    void theMouseOverARowLightsItUpAndShowsItsInfoButton()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));

        m_row->mouseEntered();

        QVERIFY(!m_row->btnInfo()->isHidden());
        QVERIFY(!m_row->btnEdit()->isHidden() && !m_row->btnDelete()->isHidden());
        QCOMPARE(m_row->imageView()->image().name(), u"cellimageH"_s);
    }

    void aRowThatTheMouseLeavesHasNoImageAtAll()
    {
        m_row->mouseEntered();

        m_row->mouseExited();

        QVERIFY(m_row->btnInfo()->isHidden());
        QVERIFY(m_row->imageView()->image().isNull());
    }

    void theMouseChangesNothingWhileADeletionWaitsForItsConfirmation()
    {
        m_host.confirms = true;
        m_row->mouseEntered();
        QVERIFY(m_row->btnInfo()->isHidden());
        QVERIFY(m_row->imageView()->image().isNull());

        m_host.confirms = false;
        m_row->mouseEntered();
        m_host.confirms = true;
        m_row->mouseExited();
        QVERIFY(!m_row->btnInfo()->isHidden());
        QCOMPARE(m_row->imageView()->image().name(), u"cellimageH"_s);
    }

    void fromItsAwakeningARowHearsTheMouse()
    {
        showAt({0, 0});
        QCOMPARE(m_row->trackingTag(), 0);
        QTest::mouseMove(m_row.get(), {4, 4});
        QVERIFY(m_row->btnInfo()->isHidden());

        m_row->awakeFromNib();
        QVERIFY(m_row->trackingTag() != 0);
        QVERIFY(m_row->hasMouseTracking());
        QTest::mouseMove(m_row.get(), {6, 6});

        QTRY_VERIFY(m_row->btnInfo()->isVisible());
    }

    void aRowThatGrowsHearsTheMouseAllOverIt()
    {
        m_row->resize(50, CustomTableCellView::RowHeight);
        m_row->awakeFromNib();
        m_row->resize(381, CustomTableCellView::RowHeight);
        showAt({0, 0});

        QTest::mouseMove(m_row.get(), {300, 30});
        QTest::mouseMove(m_row.get(), {301, 30});

        QTRY_VERIFY(m_row->btnInfo()->isVisible());
    }

    void theMouseOverAButtonIsStillOverTheRow()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));
        m_row->awakeFromNib();
        showAt({0, 0});
        QTest::mouseMove(m_row.get(), {200, 10});
        QTest::mouseMove(m_row.get(), {201, 10});
        QTRY_VERIFY(m_row->btnInfo()->isVisible());

        QTest::mouseMove(m_row->btnInfo(), {5, 5});
        QCoreApplication::processEvents();

        QVERIFY(m_row->btnInfo()->isVisible());
    }

    void theRowUnderTheKeyboardShowsItsButtons()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));

        m_row->setCurrent(true);

        QVERIFY(!m_row->btnEdit()->isHidden() && !m_row->btnDelete()->isHidden());
        QVERIFY(m_row->btnInfo()->isHidden());

        m_row->setCurrent(false);
        QVERIFY(m_row->btnEdit()->isHidden() && m_row->btnDelete()->isHidden());
    }

    void everyButtonKeepsItsPlaceWhicheverShow_data()
    {
        QTest::addColumn<QString>("audioPath");
        QTest::newRow("with audio") << u"/a.aac"_s;
        QTest::newRow("without") << QString();
    }

    void everyButtonKeepsItsPlaceWhicheverShow()
    {
        QFETCH(QString, audioPath);
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, audioPath));
        m_row->setCurrent(true);
        const QList<QRect> places = placesOfButtons();

        m_row->mouseEntered();
        QCOMPARE(placesOfButtons(), places);

        m_row->mouseExited();
        m_row->setCurrent(false);
        QCOMPARE(placesOfButtons(), places);
    }

    void theButtonsStandFromTheEndOfTheDurationOnWithoutAGap()
    {
        m_row->mouseEntered();
        for (const QString &audioPath : {u"/a.aac"_s, QString()}) {
            m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, audioPath));

            int end = label("lblDuration").geometry().right();
            for (const ImageButton *button :
                 {m_row->btnDelete(), m_row->btnEdit(), m_row->btnBrowse(), m_row->btnInfo()}) {
                if (button->isHidden())
                    continue;
                QCOMPARE(button->geometry().right(), end);
                end -= 30;
            }
        }
    }

    void theNotesEndBeforeTheButtonsThatShow()
    {
        m_row->setObjectValue(lecture(u"optics"_s, u"Lenses"_s, u"/a.aac"_s));
        const int atRest = label("lblNotes").geometry().right();

        m_row->setCurrent(true);
        QVERIFY(label("lblNotes").geometry().right() < m_row->btnBrowse()->x());

        m_row->mouseEntered();
        QVERIFY(label("lblNotes").geometry().right() < m_row->btnInfo()->x());

        m_row->mouseExited();
        m_row->setCurrent(false);
        QCOMPARE(label("lblNotes").geometry().right(), atRest);
    }

    void theMenuHasItsCommandsAtTheirPlaces()
    {
        const QMenu &menu = *m_row->getMenu();

        QCOMPARE(menu.title(), u"Contextual Menu"_s);
        QCOMPARE(titlesOf(menu), QStringList({u"Edit"_s, u"Delete"_s, u"-"_s, u"Show in Finder"_s,
                                              u"Share via Email"_s}));
        for (const QAction *item : menu.actions()) {
            QVERIFY(item->shortcut().isEmpty());
            QVERIFY(item->isEnabled() || item->isSeparator());
        }
    }

    void theMenuNeverOffersTheExportThoughItAsks()
    {
        m_host.supports = true;

        const QStringList titles = titlesOf(*m_row->getMenu());

        QCOMPARE(m_host.asked, QList<QWidget *>{m_row.get()});
        QVERIFY(!titles.contains(u"Export file to iTunes"_s));
        QCOMPARE(titles.size(), 5);
    }

    void aMenuCommandPressesTheRowsOwnButton_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("button");
        QTest::newRow("edit") << 0 << u"btnEdit"_s;
        QTest::newRow("delete") << 1 << u"btnDelete"_s;
        QTest::newRow("browse") << 3 << u"btnBrowse"_s;
        QTest::newRow("share") << 4 << u"btnEmail"_s;
    }

    void aMenuCommandPressesTheRowsOwnButton()
    {
        QFETCH(int, position);
        QFETCH(QString, button);
        const QMap<QString, QList<QWidget *>> &senders = listenToButtons();

        m_row->getMenu()->actions().at(position)->trigger();

        // The button is the sender, as for a click on it, so that its row can be found.
        QCOMPARE(senders.keys(), QStringList{button});
        QCOMPARE(senders[button], QList<QWidget *>{m_row->findChild<QWidget *>(button)});
    }

    void exportPressesTheExportButton()
    {
        const QMap<QString, QList<QWidget *>> &senders = listenToButtons();

        m_row->exportAction();

        QCOMPARE(senders.keys(), QStringList{u"btnExport"_s});
    }

    void aButtonThatIsDisabledIsNotPressed()
    {
        const QMap<QString, QList<QWidget *>> &senders = listenToButtons();
        m_row->btnDelete()->setEnabled(false);

        m_row->deleteAction();

        QVERIFY(senders.isEmpty());
    }

    void theRightMouseButtonOpensTheMenuAtTheMouse()
    {
        showAt({0, 0});

        QTest::mouseClick(m_row.get(), Qt::RightButton, {}, {100, 20});

        const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu && menu->isVisible());
        QCOMPARE(menu->pos(), m_row->mapToGlobal(QPoint(100, 20)));
        QCOMPARE(menu->actions().size(), 5);
        QCOMPARE(m_host.asked, QList<QWidget *>{m_row.get()});
        QApplication::activePopupWidget()->close();
    }

    void theRightMouseButtonOnAButtonOpensTheMenuToo()
    {
        showAt({0, 0});

        QTest::mouseClick(m_row->btnPlay(), Qt::RightButton);

        QVERIFY(qobject_cast<QMenu *>(QApplication::activePopupWidget()));
        QApplication::activePopupWidget()->close();
    }

    void theOtherMenuOffersTheExportOfAFileThatIsSupported()
    {
        m_host.supports = true;
        showAt({0, 0});
        QMouseEvent press = rightPress();

        m_row->rightMouseDown_New(&press);

        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->title(), u"Contextual Menu"_s);
        QCOMPARE(titlesOf(*menu), QStringList{u"Export file to iTunes"_s});
        const QMap<QString, QList<QWidget *>> &senders = listenToButtons();
        menu->actions().constFirst()->trigger();
        QCOMPARE(senders.keys(), QStringList{u"btnExport"_s});
        menu->close();
    }

    void controlAndTheRightButtonOpenTheOtherMenu()
    {
        m_host.supports = true;
        showAt({0, 0});

        QTest::mouseClick(m_row.get(), Qt::RightButton, Qt::ControlModifier, {100, 20});

        const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(titlesOf(*menu), QStringList{u"Export file to iTunes"_s});
        QApplication::activePopupWidget()->close();
    }

    void theOtherMenuDoesNotShowForAFileThatIsNotSupported()
    {
        showAt({0, 0});
        QMouseEvent press = rightPress();

        m_row->rightMouseDown_New(&press);

        QCOMPARE(m_host.asked, QList<QWidget *>{m_row.get()});
        QVERIFY(!QApplication::activePopupWidget());
    }

    void aMenuClosesWhenItsRowShowsAnotherLecture()
    {
        const Lecture first = lecture(u"optics"_s, {}, {});
        m_row->setObjectValue(first);
        showAt({0, 0});
        const QPointer<QMenu> menu = m_row->getMenu();
        menu->popup({10, 10});

        m_row->setObjectValue(first);
        QVERIFY(menu->isVisible());

        m_row->setObjectValue(lecture(u"algebra"_s, {}, {}));
        QVERIFY(menu->isHidden());
        QTRY_VERIFY(!menu);
    }

    void aMenuIsGoneWhenItHasClosed()
    {
        showAt({0, 0});
        const QPointer<QMenu> menu = m_row->getMenu();
        menu->popup({10, 10});

        menu->close();

        QTRY_VERIFY(!menu);
        QVERIFY(m_row->findChildren<QMenu *>().isEmpty());
    }

    void aRowWithoutAHostWorks()
    {
        m_row->setRowHost(nullptr);
        QMouseEvent press = rightPress();

        m_row->mouseEntered();
        m_row->rightMouseDown_New(&press);

        QVERIFY(!m_row->btnInfo()->isHidden());
        QCOMPARE(m_row->getMenu()->actions().size(), 5);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void itsMenuIsAsLightAsTheWindow()
    {
        const QPalette usual = QGuiApplication::palette();
        QGuiApplication::setPalette(QPalette(QColor(40, 40, 40)));

        const QColor ground = m_row->getMenu()->palette().color(QPalette::Base);
        QGuiApplication::setPalette(usual);

        QCOMPARE(ground, QColor(Qt::white));
    }

    void largeLettersAreLargerInTheRowAndNothingLiesOverEachOther()
    {
        const int usualHeight = label("lblNotes").fontMetrics().height();
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPixelSize(24);
        QApplication::setFont(large);
        prepare();
        m_row->show();
        QApplication::setFont(usual);

        const QLabel &subject = label("lblSubject");
        const QLabel &notes = label("lblNotes");
        QVERIFY(notes.fontMetrics().height() > usualHeight);
        QVERIFY(subject.height() >= subject.fontMetrics().height());
        QVERIFY(notes.height() >= notes.fontMetrics().height());
        QVERIFY(notes.y() > subject.geometry().bottom());
        QVERIFY(subject.y() >= 0);
        QVERIFY(notes.geometry().bottom() < CustomTableCellView::RowHeight - 1);
    }

    void aButtonThatDoesNotShowHasAPlaceInTheRow()
    {
        for (const ImageButton *button : m_row->buttons())
            QVERIFY(m_row->rect().contains(button->geometry()));
    }

private:
    void prepare() override
    {
        m_row = std::make_unique<CustomTableCellView>();
        m_row->resize(381, CustomTableCellView::RowHeight);
        m_host = Host();
        m_row->setRowHost(&m_host);
        m_senders.clear();
    }
    void finish() override { m_row.reset(); }

    void showAt(const QPoint &corner)
    {
        QCursor::setPos(700, 700);
        m_row->move(corner);
        m_row->show();
        QVERIFY(QTest::qWaitForWindowActive(m_row.get()));
    }
    // The senders of the buttons that are pressed from now on.
    const QMap<QString, QList<QWidget *>> &listenToButtons()
    {
        for (ImageButton *button : m_row->buttons()) {
            const QString name = button->objectName();
            button->setAction(
                {"test", [this, name](QWidget *sender) { m_senders[name].append(sender); }});
        }
        return m_senders;
    }
    QList<QRect> placesOfButtons() const
    {
        QList<QRect> places;
        for (const ImageButton *button : m_row->buttons())
            places.append(button->geometry());
        return places;
    }
    QMouseEvent rightPress() const
    {
        return {QEvent::MouseButtonPress, QPointF(50, 20), m_row->mapToGlobal(QPointF(50, 20)),
                Qt::RightButton,          Qt::RightButton, Qt::NoModifier};
    }

    const QLabel &label(const char *name) const
    {
        return *m_row->findChild<QLabel *>(QString::fromLatin1(name));
    }

    Host m_host;
    std::unique_ptr<CustomTableCellView> m_row;
    QMap<QString, QList<QWidget *>> m_senders;
};

QTEST_MAIN(CustomTableCellViewTest)
#include "CustomTableCellViewTest.moc"
