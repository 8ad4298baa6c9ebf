#pragma once

// Where calls came from, for a run that only counts them. Asks for memory itself, but not from
// what is counted.
namespace tarvelo::torture {

// Of the call that is under way and has this number, from 1. For any thread.
void noteCallStack(long number);

// A line into the file: "places", and for every distinct call stack the number of its first call.
void writePlaces(int file);

} // namespace tarvelo::torture
