#include "gallery/Scenes.h"
#include "support/TestCase.h"
#include "support/TextFit.h"
#include "widgets/ControlStyle.h"

#include <QApplication>
#include <QMenu>

using namespace tarvelo;
using tests::Application;

namespace {

// As large as the texts of desktops are that have large ones.
constexpr double OrdinaryPoints = 11;
// That, and with the desktop's setting for large text.
constexpr double Sizes[] = {1, 1.5};

QStringList faultsIn(QWidget &window)
{
    const auto menu = qobject_cast<QMenu *>(&window);
    return menu ? tests::textFaultsIn(*menu) : tests::textFaultsIn(window);
}

} // namespace

class LanguagesTest final : public tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new widgets::ControlStyle); }

    void everyTextFitsItsControlAndCanBeDrawn_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<double>("size");

        for (const QString &language : tests::languages())
            for (const double size : Sizes)
                QTest::addRow("%s at %g", qPrintable(language), size) << language << size;
    }

    void everyTextFitsItsControlAndCanBeDrawn()
    {
        QFETCH(QString, language);
        QFETCH(double, size);
        tests::speak(language);
        QFont font = QApplication::font();
        font.setPointSizeF(OrdinaryPoints * size);
        QApplication::setFont(font);
        Application program(language.toLatin1());

        QStringList faults;
        const bool isAllShown =
            tests::goThrough(program, [&](const QString &name, QWidget &window) {
                for (const QString &fault : faultsIn(window))
                    faults << name + QStringLiteral(": ") + fault;
            });

        QVERIFY(isAllShown);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_MAIN(LanguagesTest)
#include "LanguagesTest.moc"
