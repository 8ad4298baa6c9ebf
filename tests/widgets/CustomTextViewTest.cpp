#include "widgets/CustomTextView.h"

#include "support/TestCase.h"
#include "widgets/WholeText.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QTextBlock>
#include <QUrl>

using namespace Qt::StringLiterals;
using tarvelo::widgets::CustomTextView;
using tarvelo::widgets::wholeText;

namespace {

std::unique_ptr<QMimeData> styledText()
{
    auto data = std::make_unique<QMimeData>();
    data->setText(u"bold"_s);
    data->setHtml(u"<b style='color:red; font-size:40pt'>bold</b>"_s);
    return data;
}

std::unique_ptr<QMimeData> styledTextAlone()
{
    auto data = std::make_unique<QMimeData>();
    data->setHtml(u"<b>bold</b>"_s);
    return data;
}

std::unique_ptr<QMimeData> picture()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    auto data = std::make_unique<QMimeData>();
    data->setImageData(image);
    return data;
}

std::unique_ptr<QMimeData> files()
{
    auto data = std::make_unique<QMimeData>();
    data->setUrls({QUrl::fromLocalFile(u"/tmp/a.png"_s), QUrl::fromLocalFile(u"/tmp/b.png"_s)});
    return data;
}

// As file managers hand them over.
std::unique_ptr<QMimeData> filesWithText()
{
    auto data = files();
    data->setText(u"/tmp/a.png\n/tmp/b.png"_s);
    return data;
}

} // namespace

class CustomTextViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void plainTextIsTheOneTypeItReads()
    {
        QCOMPARE(m_view->readablePasteboardTypes(),
                 QStringList(QLatin1String(tarvelo::widgets::NSStringPboardType)));
        QCOMPARE(m_view->readablePasteboardTypes(), QStringList(u"text/plain"_s));
    }

    void whatComesByPastingAndDropping_data()
    {
        QTest::addColumn<std::shared_ptr<QMimeData>>("data");
        QTest::addColumn<QString>("arrives");
        const auto row = [](const char *name, std::unique_ptr<QMimeData> data,
                            const QString &text) {
            QTest::newRow(name) << std::shared_ptr<QMimeData>(std::move(data)) << text;
        };
        row("styled text with plain text", styledText(), u"bold"_s);
        row("styled text alone", styledTextAlone(), QString());
        row("a picture", picture(), QString());
        row("files without text", files(), QString());
        row("files with text", filesWithText(), u"/tmp/a.png\n/tmp/b.png"_s);
    }
    void whatComesByPastingAndDropping()
    {
        QFETCH(std::shared_ptr<QMimeData>, data);
        QFETCH(QString, arrives);

        drop(*data);
        QCOMPARE(wholeText(*m_view), arrives);
        m_view->clear();
        paste(*data);

        QCOMPARE(wholeText(*m_view), arrives);
        QVERIFY(!m_view->toHtml().contains("<img"_L1));
    }

    void styledTextTakesTheStyleThatTypingHas()
    {
        m_view->setTextColor(Qt::blue);
        m_view->setFontPointSize(15);

        paste(*styledText());

        const QTextCharFormat format = m_view->document()->begin().begin().fragment().charFormat();
        QCOMPARE(format.foreground().color(), QColor(Qt::blue));
        QCOMPARE(format.fontPointSize(), 15.0);
        QVERIFY(format.fontWeight() != QFont::Bold);
    }

    void pastingIsOfferedForPlainTextAlone()
    {
        QGuiApplication::clipboard()->setMimeData(files().release());
        QVERIFY(!m_view->canPaste());

        QGuiApplication::clipboard()->setMimeData(filesWithText().release());

        QVERIFY(m_view->canPaste());
    }

    void aDragWithoutPlainTextIsTurnedAway()
    {
        QVERIFY(!takesDrag(*files()));
        QVERIFY(!takesDrag(*picture()));
        QVERIFY(takesDrag(*styledText()));
    }

    void aTextOfLinesComesAsItIs()
    {
        QMimeData data;
        data.setText(u"<b>5\u00a0km</b>\r\n\tfar & wide"_s);

        paste(data);

        QCOMPARE(wholeText(*m_view), u"<b>5\u00a0km</b>\n\tfar & wide"_s);
    }

    void whatIsCopiedIsPlainTextToTheCharacter()
    {
        m_view->setPlainText(u"5\u00a0km\nfar"_s);
        m_view->selectAll();

        m_view->copy();

        const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(copied->text(), u"5\u00a0km\nfar"_s);
        QVERIFY(!copied->hasHtml());
        m_view->paste();
        QCOMPARE(wholeText(*m_view), u"5\u00a0km\nfar"_s);
    }

    void aPastedTextCanBeUndone()
    {
        QTest::keyClicks(m_view.get(), u"Lenses "_s);
        paste(*styledText());

        m_view->undo();

        QCOMPARE(wholeText(*m_view), u"Lenses "_s);
    }

    void aTextThatIsOnlyReadTakesNothing()
    {
        m_view->setPlainText(u"Lenses"_s);
        m_view->setReadOnly(true);

        drop(*styledText());
        paste(*styledText());

        QCOMPARE(wholeText(*m_view), u"Lenses"_s);
    }

private:
    void prepare() override
    {
        m_view = std::make_unique<CustomTextView>();
        m_view->resize(200, 100);
        m_view->show();
        m_view->setFocus();
    }
    void finish() override { m_view.reset(); }

    void paste(const QMimeData &data)
    {
        auto copy = std::make_unique<QMimeData>();
        for (const QString &format : data.formats())
            copy->setData(format, data.data(format));
        if (data.hasImage())
            copy->setImageData(data.imageData());
        QGuiApplication::clipboard()->setMimeData(copy.release());
        m_view->paste();
    }
    bool takesDrag(const QMimeData &data)
    {
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(m_view->viewport(), &enter);
        return enter.isAccepted();
    }
    void drop(const QMimeData &data)
    {
        if (!takesDrag(data))
            return;
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_view->viewport(), &event);
    }

    std::unique_ptr<CustomTextView> m_view;
};

QTEST_MAIN(CustomTextViewTest)
#include "CustomTextViewTest.moc"
