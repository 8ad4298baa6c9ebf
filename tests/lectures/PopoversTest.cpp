#include "lectures/Popovers.h"

#include "support/LectureProgram.h"
#include "support/TestCase.h"
#include "widgets/PopOver.h"

using tarvelo::tests::LectureProgram;

class PopoversTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void thePopOversHoldWhatTheyShow()
    {
        const auto &popovers = windows().popoverOutlets();

        QCOMPARE(popovers.lblRecordDeleteConfirmation->window(),
                 popovers.popoverConfirmRecordDelete);
        QCOMPARE(popovers.btnConfirmNo->window(), popovers.popoverConfirmRecordDelete);
        QCOMPARE(popovers.btnConfirmYes->window(), popovers.popoverConfirmRecordDelete);
        QCOMPARE(popovers.lblPopoverNoAudio->window(), popovers.popoverAudioConfirmClose);
        QCOMPARE(popovers.btnClosePopover->window(), popovers.popoverAudioConfirmClose);
        QVERIFY(popovers.popoverConfirmRecordDelete->isHidden());
        QVERIFY(popovers.popoverAudioConfirmClose->isHidden());
    }

private:
    void prepare() override { m_program = std::make_unique<LectureProgram>(); }
    void finish() override { m_program.reset(); }

    const tarvelo::lectures::LectureWindows &windows() const { return m_program->windows; }

    std::unique_ptr<LectureProgram> m_program;
};

QTEST_MAIN(PopoversTest)
#include "PopoversTest.moc"
