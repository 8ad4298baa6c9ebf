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
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        prepare();
    }
    void cleanup() { finish(); }

protected:
    virtual void prepare() {}
    virtual void finish() {}
};

} // namespace tarvelo::tests
