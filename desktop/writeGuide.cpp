#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

// usage: tarvelo_write_guide GUIDE.html GUIDE.pdf
// Sets the guide on A4 pages with a footer that counts them. In its text %pageof:NAME% stands for
// the page of the anchor NAME, and %version% for the program's version. The same text, pictures
// and fonts give the same file to the byte. It runs while the program is built and is not
// installed.

namespace {

constexpr int Resolution = 1200; // dots an inch
constexpr double PointsInch = 72;
constexpr double MillimetresInch = 25.4;
constexpr double Margin = 19;       // mm, at the sides and above
constexpr double FooterHeight = 22; // mm, from the text to the edge of the paper
const QSizeF Paper(210, 297);       // mm
const QColor FooterColour(0x7a, 0x7a, 0x82);

double dots(double millimetres)
{
    return millimetres * Resolution / MillimetresInch;
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What ends a page would push the top of the next one down by the margin below it.
void beginPagesAtTheirTop(const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!(block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore))
            continue;
        QTextCursor before(block.previous());
        QTextBlockFormat format;
        format.setBottomMargin(0);
        before.mergeBlockFormat(format);
    }
}

// Lays the text out for the device and the size of its pages.
void layOut(QTextDocument &document, QPdfWriter &writer, const QString &html)
{
    document.documentLayout()->setPaintDevice(&writer);
    document.setDocumentMargin(0);
    document.setPageSize(
        QSizeF(dots(Paper.width() - 2 * Margin), dots(Paper.height() - Margin - FooterHeight)));
    document.setIndentWidth(20);
    document.setHtml(html);
    // Letters with a space of their own between them are not joined: who searches the guide for a
    // word, or has it read out, finds all of its letters.
    QTextCharFormat separate;
    separate.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    separate.setFontLetterSpacing(0.02);
    QTextCursor all(&document);
    all.select(QTextCursor::Document);
    all.mergeCharFormat(separate);
    beginPagesAtTheirTop(document);
}

int pageOf(const QTextDocument &document, const QString &anchor)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (!part.fragment().charFormat().anchorNames().contains(anchor))
                continue;
            // The upper end of what begins a page may lie on the page before.
            const double end = document.documentLayout()->blockBoundingRect(block).bottom() - 1;
            return static_cast<int>(end / document.pageSize().height()) + 1;
        }
    }
    return 0;
}

const QRegularExpression &placeOfNumber()
{
    static const QRegularExpression place(QStringLiteral("%pageof:(\\w+)%"));
    return place;
}

QString withPageNumbers(const QTextDocument &document, QString html)
{
    for (auto match = placeOfNumber().match(html); match.hasMatch();
         match = placeOfNumber().match(html))
        html.replace(match.captured(), QString::number(pageOf(document, match.captured(1))));
    return html;
}

void drawPage(QPainter &painter, QTextDocument &document, int page)
{
    const QSizeF size = document.pageSize();
    painter.save();
    painter.translate(dots(Margin), dots(Margin) - (page - 1) * size.height());
    // A hair more at the sides, where the frames of pictures lie, and one less below, where
    // rounding would show of the next page.
    const QRectF view = QRectF(0, (page - 1) * size.height(), size.width(), size.height())
                            .adjusted(-dots(0.5), 0, dots(0.5), -dots(0.5));
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = view;
    context.palette.setColor(QPalette::Text, Qt::black);
    painter.setClipRect(view);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

// The first page is the title, which says both by itself.
void drawFooter(QPainter &painter, const QTextDocument &document, int page)
{
    if (page == 1)
        return;
    QFont font = document.defaultFont();
    font.setPointSizeF(8.5);
    painter.setFont(font);
    painter.setPen(FooterColour);
    const QRectF line(dots(Margin), dots(Paper.height() - 14), document.pageSize().width(),
                      dots(5));
    painter.drawText(line, Qt::AlignLeft, document.metaInformation(QTextDocument::DocumentTitle));
    painter.drawText(line, Qt::AlignRight, QString::number(page));
}

QByteArray write(const QString &source)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(Resolution);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    writer.setCreator(QStringLiteral("Tarvelo"));

    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("Lato"), 10));
    document.setBaseUrl(QUrl::fromLocalFile(QFileInfo(source).absolutePath() + u'/'));
    const QString html =
        contentOf(source).replace(QStringLiteral("%version%"), QStringLiteral(TARVELO_VERSION));
    // A number is not wider than this, so that what stood on a page stays there.
    layOut(document, writer, QString(html).replace(placeOfNumber(), QStringLiteral("00")));
    layOut(document, writer, withPageNumbers(document, html));
    writer.setTitle(document.metaInformation(QTextDocument::DocumentTitle));

    QPainter painter(&writer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    for (int page = 1; page <= document.pageCount(); ++page) {
        if (page > 1)
            writer.newPage();
        drawPage(painter, document, page);
        drawFooter(painter, document, page);
    }
    painter.end();
    return bytes;
}

// The moment of the build is that of the sources, where whoever builds says it.
void stamp(QByteArray &pdf)
{
    bool isSaid = false;
    const qint64 moment = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isSaid);
    const qsizetype place = pdf.indexOf("/CreationDate (D:");
    if (!isSaid || place < 0)
        return;
    const QByteArray date = QDateTime::fromSecsSinceEpoch(moment, Qt::UTC)
                                .toString(QStringLiteral("yyyyMMddHHmmss"))
                                .toLatin1();
    pdf.replace(place + 17, date.size(), date);
}

// A build has no session, and needs none: what Qt remarks about that helps nobody.
void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type >= QtCriticalMsg)
        fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    qInstallMessageHandler(handleMessage);
    QHashSeed::setDeterministicGlobalSeed();
    qputenv("TZ", "UTC");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QByteArray guide = write(QString::fromLocal8Bit(argv[1]));
    stamp(guide);
    QFile file(QString::fromLocal8Bit(argv[2]));
    return file.open(QIODevice::WriteOnly) && file.write(guide) == guide.size() ? 0 : 1;
}
