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

// Counts a call and gives its number, from 1; 0 where it is not counted.
long count(const char *kind);

// Whether it is the call with that number that fails, and only then leaves a word of that.
bool isStruck(const char *kind, long number);

// Both.
bool strikes(const char *kind);

} // namespace tarvelo::torture
