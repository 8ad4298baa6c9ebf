#pragma once

#include "store/LectureDatabase.h"
#include "support/FakeClock.h"
#include "support/TemporaryPlaces.h"
#include "support/TestCase.h"

#include <memory>

namespace tarvelo::tests {

// The base of tests of the lectures' database: every test has one in a home of its own, in which
// there is nothing yet.
class DatabaseCase : public TestCase
{
protected:
    void prepare() override
    {
        m_places = std::make_unique<TemporaryPlaces>();
        m_database = std::make_unique<store::LectureDatabase>(m_places->places(), m_clock);
    }
    void finish() override
    {
        m_database.reset();
        m_places.reset();
    }

    FakeClock m_clock;
    std::unique_ptr<TemporaryPlaces> m_places;
    std::unique_ptr<store::LectureDatabase> m_database;
};

} // namespace tarvelo::tests
