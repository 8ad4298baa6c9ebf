#include "audio/engine/SampleRing.h"
#include "support/TestCase.h"

#include <numeric>
#include <thread>

using tarvelo::engine::SampleRing;

class SampleRingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatGoesInComesOutInItsOrder()
    {
        SampleRing ring(5);
        std::vector<float> out(5);

        // Four times round the ring.
        for (int round = 0; round < 7; ++round) {
            const auto first = static_cast<float>(round * 3);
            const std::vector<float> in{first, first + 1, first + 2};
            QCOMPARE(ring.write(in), std::size_t{3});
            QCOMPARE(ring.read(out), std::size_t{3});
            QVERIFY(std::equal(in.begin(), in.end(), out.begin()));
        }
    }

    void whatDoesNotFitIsNotTaken()
    {
        SampleRing ring(4);

        QCOMPARE(ring.write(std::vector<float>{1, 2, 3, 4, 5, 6}), std::size_t{4});
        QCOMPARE(ring.write(std::vector<float>{7}), std::size_t{0});

        std::vector<float> out(6);
        QCOMPARE(ring.read(out), std::size_t{4});
        QCOMPARE(out, (std::vector<float>{1, 2, 3, 4, 0, 0}));
    }

    void anEmptyRingGivesNothing()
    {
        SampleRing ring(4);
        std::vector<float> out(4);

        QCOMPARE(ring.read(out), std::size_t{0});
    }

    void twoThreadsLoseNothing()
    {
        constexpr std::size_t Count = 200000;
        SampleRing ring(64);
        std::vector<float> in(Count);
        std::iota(in.begin(), in.end(), 0.0F);
        std::thread writer([&] {
            for (std::size_t done = 0; done < Count;)
                done += ring.write(
                    std::span(in).subspan(done, std::min<std::size_t>(17, Count - done)));
        });

        std::vector<float> out(Count);
        for (std::size_t done = 0; done < Count;)
            done += ring.read(std::span(out).subspan(done));
        writer.join();

        QVERIFY(in == out);
    }
};

QTEST_GUILESS_MAIN(SampleRingTest)
#include "SampleRingTest.moc"
