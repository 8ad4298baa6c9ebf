#pragma once

// Which call fails, for the functions of OneFault that stand before those of the C library.
namespace tarvelo::torture {

struct Fault
{
    char kind[16] = "";
    int error = 0;
    bool isShort = false;
    long number = 0;
};

// As TORTURE_FAULT says it.
const Fault &fault();

// Whether the program has come to where counting begins.
bool isCounting();

// Whether calls of that kind are counted now.
bool isCounted(const char *kind);

// Counts a call. Whether it is this one that fails.
bool strikes(const char *kind);

} // namespace tarvelo::torture
