#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QTest>

namespace tarvelo::tests {

// The base of every test class: any warning that Qt or our own code prints fails the test that
// caused it.
class TestCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // The screen of the tests is one in memory, which complains that it can place no windows.
        QTest::failOnWarning(QRegularExpression(
            QStringLiteral("^(?!This plugin does not support |"
                           "QObject::connect: No such signal QPlatformNativeInterface::)")));
        prepare();
    }
    void cleanup() { finish(); }

protected:
    virtual void prepare() {}
    virtual void finish() {}
};

} // namespace tarvelo::tests
