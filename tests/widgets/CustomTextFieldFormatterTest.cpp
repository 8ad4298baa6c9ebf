#include "widgets/CustomTextFieldFormatter.h"

#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using tarvelo::widgets::CustomTextFieldFormatter;
using tarvelo::widgets::TextRange;

namespace {

bool accepts(const CustomTextFieldFormatter &formatter, QString proposed)
{
    return formatter
        .isPartialStringValidProposedSelectedRangeOriginalStringOriginalSelectedRangeErrorDescription(
            &proposed, nullptr, QString(), TextRange(), nullptr);
}

CustomTextFieldFormatter limitedTo(qint32 length)
{
    CustomTextFieldFormatter formatter;
    formatter.setMaximumLength(length);
    return formatter;
}

} // namespace

class CustomTextFieldFormatterTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAMaximumAnyLengthIsAccepted()
    {
        const CustomTextFieldFormatter formatter;

        QCOMPARE(formatter.maximumLength(), 2147483647);
        QVERIFY(accepts(formatter, QString()));
        QVERIFY(accepts(formatter, QString(100000, u'x')));
    }

    void aTextOfAtMostTheMaximumIsAccepted()
    {
        const CustomTextFieldFormatter formatter = limitedTo(10);

        QCOMPARE(formatter.maximumLength(), 10);
        QVERIFY(accepts(formatter, u"ten letter"_s));
        QVERIFY(!accepts(formatter, u"ten letters"_s));
        QVERIFY(!accepts(formatter, QString(20, u'x')));
    }

    void withoutInitEveryTextButTheEmptyOneIsRefusedUntilAMaximumIsSet()
    {
        CustomTextFieldFormatter formatter{CustomTextFieldFormatter::WithoutInit()};
        QCOMPARE(formatter.maximumLength(), 0);
        QVERIFY(!accepts(formatter, u"a"_s));
        QVERIFY(accepts(formatter, QString()));

        formatter.setMaximumLength(1);

        QVERIFY(accepts(formatter, u"a"_s));
    }

    void lengthsCountUtf16Units()
    {
        QVERIFY(!accepts(limitedTo(1), u"😀"_s));
        QVERIFY(accepts(limitedTo(2), u"😀"_s));
    }

    void askingChangesNothing()
    {
        QString proposed = u"eleven char"_s;
        TextRange selected{11, 0};
        QString error = u"untouched"_s;

        for (const qint32 maximum : {10, 11})
            limitedTo(maximum)
                .isPartialStringValidProposedSelectedRangeOriginalStringOriginalSelectedRangeErrorDescription(
                    &proposed, &selected, u"eleven cha"_s, {10, 0}, &error);

        QCOMPARE(proposed, u"eleven char"_s);
        QCOMPARE(selected, (TextRange{11, 0}));
        QCOMPARE(error, u"untouched"_s);
    }

    void theValueIsTheTextItselfOfAnyLength()
    {
        const CustomTextFieldFormatter formatter = limitedTo(3);
        QString value;
        QString error = u"untouched"_s;

        QVERIFY(formatter.getObjectValueForStringErrorDescription(&value, u"Optics"_s, &error));

        QCOMPARE(value, u"Optics"_s);
        QCOMPARE(error, u"untouched"_s);
        QCOMPARE(formatter.stringForObjectValue(value), u"Optics"_s);
        QVERIFY(formatter.getObjectValueForStringErrorDescription(nullptr, u"Optics"_s, nullptr));
    }

    void thePlainTextShows()
    {
        const CustomTextFieldFormatter formatter;

        QVERIFY(!formatter.attributedStringForObjectValueWithDefaultAttributes(u"Optics"_s, {}));
    }
};

QTEST_MAIN(CustomTextFieldFormatterTest)
#include "CustomTextFieldFormatterTest.moc"
