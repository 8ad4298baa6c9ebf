#include "audio/engine/IndexedCopy.h"
#include "audio/engine/AacEncoder.h"
#include "audio/engine/BadPlace.h"
#include "audio/engine/FragmentedFile.h"
#include "audio/engine/Resampler.h"
#include "audio/engine/TakeCase.h"
#include "support/DecodedAudio.h"
#include "support/TestSound.h"

#include <QFile>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

class IndexedCopyTest final : public TakeCase
{
    Q_OBJECT

private Q_SLOTS:
    void theCopySoundsTheSameToTheLastSample()
    {
        const auto extent = writeFragmented(4.21);
        const auto before = DecodedAudio::read(path());
        QVERIFY(MovieFacts::read(path())->isFragmented);

        QVERIFY(replaceWithIndexedCopy(file(), extent));

        const auto after = DecodedAudio::read(path());
        QVERIFY(!MovieFacts::read(path())->isFragmented);
        QVERIFY(before->samples == after->samples);
    }

    void theLengthIsKnownWithoutDecoding()
    {
        const auto extent = writeFragmented(4.21);

        QVERIFY(replaceWithIndexedCopy(file(), extent));

        QVERIFY(std::abs(MovieFacts::read(path())->seconds - 4.21) < 0.025);
    }

    void aFileThatLacksSoundIsLeftAsItIs()
    {
        auto extent = writeFragmented(3);
        const auto before = content();
        ++extent.packets;

        QVERIFY(!replaceWithIndexedCopy(file(), extent));

        QCOMPARE(content(), before);
    }

    void aFileThatCannotBeReadToItsEndIsLeftAsItIs()
    {
        const auto extent = writeFragmented(3);
        const auto before = content();
        for (qsizetype place = 5000; place < before.size(); place += before.size() / 7) {
            {
                const BadPlace bad(place, EIO);
                QVERIFY(!replaceWithIndexedCopy(file(), extent));
            }
            QCOMPARE(content(), before);
        }
    }

    void whatIsNoMovieIsLeftAsItIs()
    {
        QFile note(path());
        QVERIFY(note.open(QIODevice::WriteOnly));
        note.write("a shopping list");
        note.close();

        QVERIFY(!replaceWithIndexedCopy(file(), TakeExtent{1, 1024}));
        QVERIFY(!replaceWithIndexedCopy(file() + ".missing", TakeExtent{1, 1024}));

        QCOMPARE(content(), QByteArray("a shopping list"));
    }

    void whatACrashLeftOfACopyIsWrittenOver()
    {
        QFile rest(m_folder->filePath(QStringLiteral(".take.m4a.indexed")));
        QVERIFY(rest.open(QIODevice::WriteOnly));
        rest.write(QByteArray(1000000, 'x'));
        rest.close();
        const auto extent = writeFragmented(2);

        QVERIFY(replaceWithIndexedCopy(file(), extent));

        QVERIFY(!rest.exists());
        QVERIFY(QFile(path()).size() < 100000);
    }

private:
    TakeExtent writeFragmented(double seconds) const
    {
        const auto encoder = AacEncoder::create({});
        const auto resampler = Resampler::create({44100, 1}, {44100, 2});
        const auto take = FragmentedFile::create(OutputFile::create(file()), encoder->codec());
        const auto output = [&](const AVPacket &packet) { take->add(packet); };
        resampler->put(tune(44100, seconds));
        while (const int samples = std::min(resampler->available(), encoder->frameLength())) {
            resampler->take(*encoder->frame(), samples);
            encoder->encode(samples, output);
        }
        encoder->finish(output);
        take->finish();
        return take->extentInFile();
    }
};

QTEST_GUILESS_MAIN(IndexedCopyTest)
#include "IndexedCopyTest.moc"
