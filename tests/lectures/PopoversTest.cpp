#include "lectures/Popovers.h"

#include "lectures/ProgramCase.h"
#include "widgets/ControlStyle.h"
#include "widgets/ImageButton.h"
#include "widgets/PopOver.h"

#include <QLabel>

using namespace Qt::StringLiterals;

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

    // As those of every other window.
    void theirButtonsAndTextsHaveOneSize()
    {
        QApplication::setStyle(new tarvelo::widgets::ControlStyle);
        const auto &popovers = windows().popoverOutlets();

        for (const QPushButton *button :
             {popovers.btnConfirmNo, popovers.btnConfirmYes, popovers.btnClosePopover}) {
            QCOMPARE(button->font(), QApplication::font());
            QCOMPARE(button->sizeHint().height(), QPushButton(u"No"_s).sizeHint().height());
        }
        for (const QLabel *label :
             {popovers.lblRecordDeleteConfirmation, popovers.lblPopoverNoAudio})
            QCOMPARE(label->font(), QApplication::font());
    }
};

QTEST_MAIN(PopoversTest)
#include "PopoversTest.moc"
