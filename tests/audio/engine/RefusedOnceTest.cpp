#include "audio/engine/OneRefusal.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"
#include "support/DecodedAudio.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <QFile>
#include <QTemporaryDir>

#include <functional>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

// A machine that is short of memory refuses one piece, of any size, and gives the next: that costs
// a take nothing.
class RefusedOnceTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRefusalAtTheBeginningOfATakeCostsNoSample_data() { microphones(); }
    void aRefusalAtTheBeginningOfATakeCostsNoSample()
    {
        m_begin = 0;
        verifyThatNothingIsMissing([this](int number) { return takeOf(number, 0); });
    }

    void aRefusalWhileATakeRunsCostsNoSample_data() { microphones(); }
    void aRefusalWhileATakeRunsCostsNoSample()
    {
        verifyThatNothingIsMissing([this](int number) { return takeOf(number, 0); });
    }

    void aRefusalWhileATakeIsFinishedCostsNoSample_data()
    {
        QTest::addColumn<int>("rate");
        QTest::newRow("another rate") << 48000;
    }
    void aRefusalWhileATakeIsFinishedCostsNoSample()
    {
        verifyThatNothingIsMissing([this](int number) { return takeOf(0, number); });
    }

private:
    void prepare() override { m_begin = 0.3; }

    static void microphones()
    {
        QTest::addColumn<int>("rate");
        QTest::newRow("as the take") << 44100;
        QTest::newRow("another rate") << 48000;
    }

    // Whichever piece is refused.
    void verifyThatNothingIsMissing(const std::function<std::vector<float>(int)> &takeWithout)
    {
        const auto expected = takeWithout(0);
        QVERIFY(!expected.empty());

        int number = 0;
        do {
            const auto take = takeWithout(++number);
            QVERIFY2(take.size() == expected.size(), qPrintable(QString::number(number)));
            // What the encoder makes of a sound follows also from how long it has heard it.
            QVERIFY2(correlation(expected, take) > 0.99, qPrintable(QString::number(number)));
        } while (m_hasStruck);
        QVERIFY(number > 50);
    }

    // What is heard of a take that lacked one piece of memory in its middle or at its end.
    std::vector<float> takeOf(int refusedWriting, int refusedFinishing)
    {
        QFETCH(int, rate);
        const auto sound = tune(rate, 0.6);
        const auto begin = static_cast<std::size_t>(rate * m_begin);
        const auto writer =
            TakeWriter::create(QFile::encodeName(name()).toStdString(), {rate, 1}, {});
        bool isTaken = writer->write(std::span(sound).first(begin));
        {
            const OneRefusal refusal(refusedWriting);
            for (std::size_t at = begin; at < sound.size(); at += Block)
                isTaken &=
                    writer->write(std::span(sound).subspan(at, std::min(Block, sound.size() - at)));
            m_hasStruck = OneRefusal::hasStruck();
        }
        {
            const OneRefusal refusal(refusedFinishing);
            isTaken &= writer->finish();
            m_hasStruck &= OneRefusal::hasStruck();
        }
        const auto heard = DecodedAudio::read(name());
        return heard && isTaken ? heard->samples : std::vector<float>();
    }
    QString name() const { return m_folder.filePath(QStringLiteral("take.m4a")); }

    static constexpr std::size_t Block = 1764;

    const QTemporaryDir m_folder;
    double m_begin = 0; // in seconds, of what is written without enough memory
    bool m_hasStruck = false;
};

QTEST_GUILESS_MAIN(RefusedOnceTest)
#include "RefusedOnceTest.moc"
