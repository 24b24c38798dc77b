#pragma once

#include <QObject>

/**
 * The base of all test classes.
 *
 * A Qt warning that a test does not expect fails the test program, by what it prints; what the platform
 * plugin says of itself is kept out of that. The two slots are final, so that no test hides them: what it
 * needs once it sets up in its constructor.
 */
class TestCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    virtual void initTestCase() final;
    virtual void cleanupTestCase() final;
};
