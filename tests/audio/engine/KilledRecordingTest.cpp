#include "audio/engine/RecordingCase.h"

#include <QRandomGenerator>

using namespace tarvelo::tests;

// The program is killed while it records, at moments that nobody chose.
class KilledRecordingTest final : public RecordingCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_seed = QRandomGenerator::global()->generate();
        m_random.seed(m_seed);
    }

    void allButTheLastSecondIsThere_data()
    {
        QTest::addColumn<double>("moment");
        for (int number = 1; number <= 10; ++number)
            QTest::addRow("%d", number) << 1.05 + m_random.bounded(4.0);
    }
    void allButTheLastSecondIsThere()
    {
        QFETCH(double, moment);
        qInfo("seed %u, killed at %.3f s", m_seed, moment);
        QVERIFY(startServer());
        const auto played = tune(44100, 20);
        QVERIFY(speak(played));

        const double recorded = recordAndKillAt(moment);
        QVERIFY2(recorded >= moment, qPrintable(QString::number(recorded)));

        const auto left = DecodedAudio::read(path());
        QVERIFY(left);
        QVERIFY2(left->seconds() >= recorded - 1, qPrintable(QString::number(left->seconds())));
        const auto likeness = compare(played, left->channel(0), 44100);
        QVERIFY2(likeness.correlation >= 0.98, qPrintable(QString::number(likeness.correlation)));
        QVERIFY(likeness.drift < 0.02);
    }

private:
    // Returns the recorder's last word.
    double recordAndKillAt(double moment)
    {
        QProcess program;
        program.start(QStringLiteral(RECORD_UNTIL_KILLED), {path()});
        double time = 0;
        while (time < moment && program.waitForReadyRead(Patience))
            while (program.canReadLine())
                time = program.readLine().trimmed().toDouble();
        program.kill();
        program.waitForFinished(Patience);
        const QByteArray said = program.readAllStandardError();
        return said.isEmpty() ? time : (qInfo("%s", said.constData()), -1);
    }

    quint32 m_seed = 0;
    QRandomGenerator m_random;
};

QTEST_GUILESS_MAIN(KilledRecordingTest)
#include "KilledRecordingTest.moc"
