#include "audio/engine/MovieOutline.h"
#include "audio/engine/Boxes.h"
#include "audio/engine/ByteSource.h"
#include "audio/engine/Recordings.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

using namespace tarvelo::engine;
using namespace tarvelo::tests;

namespace {

std::optional<MovieOutline> outlineOf(const QByteArray &movie)
{
    return tarvelo::engine::outlineOf(*ByteSource::ofBytes(movie));
}

} // namespace

class MovieOutlineTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aStoppedTakeHasNoFragmentsAndOneCutOffHas()
    {
        const auto stopped = outlineOf(recordingOf(tune(44100, 1)));
        const auto cutOff = outlineOf(recordingOf(tune(44100, 1), Ending::CutOff));

        QVERIFY(stopped && !stopped->holdsFragments);
        QVERIFY(cutOff && cutOff->holdsFragments);
    }

    void aFileThatEndsInTheDescriptionOfAFragmentEndsBeforeIt()
    {
        const QByteArray header = box("ftyp", "isom") + box("moov", "");
        const QByteArray fragment = box("moof", "long enough") + box("mdat", "sound");

        const auto whole = outlineOf(header + fragment);
        const auto cut = outlineOf(header + fragment + fragment.first(15));

        QCOMPARE(whole->size, header.size() + fragment.size());
        QCOMPARE(cut->size, header.size() + fragment.size());
    }

    void aFileThatEndsInItsSoundGoesOnToTheEnd()
    {
        const QByteArray movie = box("ftyp", "isom") + box("mdat", "sound of some length");

        QCOMPARE(outlineOf(movie.chopped(5))->size, movie.size() - 5);
    }

    void aBoxMayBeLargeOrReachToTheEnd()
    {
        const QByteArray large("\0\0\0\1mdat\0\0\0\0\0\0\0\x12__", 18);
        const QByteArray toTheEnd("\0\0\0\0mdat____", 12);

        const auto outline = outlineOf(box("ftyp", "isom") + large + box("moof", "") + toTheEnd);

        QVERIFY(outline->holdsFragments);
        QCOMPARE(outline->size, 12 + 18 + 8 + 12);
    }

    void whatMakesNoSenseEndsTheFile()
    {
        const QByteArray sense = box("ftyp", "isom");

        QCOMPARE(outlineOf(sense + QByteArray("\0\0\0\7moof", 8))->size, sense.size());
        QCOMPARE(outlineOf(sense + QByteArray("\0\0\0\1mdat\xff\xff\xff\xff\0\0\0\0", 16))->size,
                 sense.size());
        QCOMPARE(outlineOf(sense + QByteArray("\0\0\0\1mdat____", 12))->size, sense.size());
        QCOMPARE(outlineOf(QByteArray("\0\0"))->size, 0);
    }

    void fragmentsOfATrackWithoutANumberAreRefused()
    {
        const auto movie = recordingOf(tune(44100, 1), Ending::CutOff);
        const qsizetype number = movie.indexOf("tkhd") + 16;

        QVERIFY(outlineOf(movie));
        QVERIFY(!outlineOf(QByteArray(movie).replace(number, 4, QByteArray(4, '\0'))));
        QVERIFY(!outlineOf(QByteArray(movie).replace(number, 4, QByteArray(4, '\xff'))));
        QVERIFY(!outlineOf(QByteArray(movie).replace("tkhd", "free")));
        QVERIFY(outlineOf(recordingOf(tune(44100, 1)).replace("tkhd", "free")));
    }

    void aTrackOfLongTimesHasItsNumberFurtherOn()
    {
        const QByteArray track = "trak____tkhd" + QByteArray(1, '\1') + QByteArray(19, '\0');
        const QByteArray fragment = box("moof", "");

        QVERIFY(outlineOf(box("moov", track + QByteArray("\0\0\0\1", 4)) + fragment));
        QVERIFY(!outlineOf(box("moov", track + QByteArray("\0\0\0\0", 4)) + fragment));
    }

    void aTrackThatEndsBeforeItsNumberHasNone()
    {
        const QByteArray track = "trak____tkhd" + QByteArray(23, '\1');

        QVERIFY(!outlineOf(box("moov", track) + box("moof", "")));
    }

    // A reader that looks for boxes elsewhere than this one does may find the fragment.
    void aFragmentHiddenInAnotherBoxCountsToo()
    {
        const QByteArray hidden = box("skip", box("moof", ""));

        QVERIFY(!outlineOf(box("moov", "trak") + hidden));
        QVERIFY(!outlineOf(hidden)->holdsFragments);
    }

private:
    static QByteArray box(const char *type, const QByteArray &content)
    {
        QByteArray header(4, '\0');
        qToBigEndian(static_cast<quint32>(content.size() + 8), header.data());
        return header + type + content;
    }
};

QTEST_GUILESS_MAIN(MovieOutlineTest)
#include "MovieOutlineTest.moc"
