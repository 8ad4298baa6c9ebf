#include "lectures/CustomTableCellView.h"

#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using tarvelo::lectures::CustomTableCellView;
using tarvelo::lectures::Lecture;

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
        QVERIFY(!label("lblSubject").toolTip().contains(u'<'));
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

private:
    void prepare() override
    {
        m_row = std::make_unique<CustomTableCellView>();
        m_row->resize(381, CustomTableCellView::RowHeight);
    }
    void finish() override { m_row.reset(); }

    const QLabel &label(const char *name) const
    {
        return *m_row->findChild<QLabel *>(QString::fromLatin1(name));
    }

    std::unique_ptr<CustomTableCellView> m_row;
};

QTEST_MAIN(CustomTableCellViewTest)
#include "CustomTableCellViewTest.moc"
