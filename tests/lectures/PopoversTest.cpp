#include "lectures/Popovers.h"

#include "lectures/ProgramCase.h"
#include "widgets/PopOver.h"

class PopoversTest final : public tarvelo::tests::ProgramCase
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
};

QTEST_MAIN(PopoversTest)
#include "PopoversTest.moc"
