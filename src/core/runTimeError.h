#pragma once

#include <stdexcept>
#include <string>

namespace core {

// The one exception of the program: a run-time error with the number that its users know it by.
// A handler that reports or swallows errors catches this type; what nobody catches reaches the
// window's event boundary and ends the program.
class RunTimeError : public std::runtime_error {
public:
    RunTimeError(int errorNumber, const std::string& text) : std::runtime_error(text), number(errorNumber) {}

    const int number;
};

namespace errors {
constexpr int overflow = 6;
constexpr int subscriptOutOfRange = 9;
constexpr int divisionByZero = 11;
constexpr int typeMismatch = 13;
constexpr int badFileName = 52;
constexpr int fileNotFound = 53;
constexpr int deviceIO = 57;
constexpr int diskFull = 61;
constexpr int pathAccess = 75;
constexpr int diskNotReady = 71;
constexpr int badFileFormat = 321;
constexpr int keyInUse = 457;
constexpr int syntax = 1002;
constexpr int cancelled = 32755;
constexpr int indexOutOfBounds = 35600;
constexpr int elementNotFound = 35601;
constexpr int keyNotUnique = 35602;
} // namespace errors

[[noreturn]] void raise(int number, const std::string& detail = {});

} // namespace core
