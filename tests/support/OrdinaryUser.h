#pragma once

#include <QtGlobal>

namespace tarvelo::tests {

// While one lives, file permissions bind this thread also when the tests run as root, whom they do
// not bind otherwise. For everyone else it changes nothing.
class OrdinaryUser final
{
public:
    OrdinaryUser();
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;
    ~OrdinaryUser();

private:
    quint32 m_effective[2] = {};
};

} // namespace tarvelo::tests
