#include "core/runTimeError.h"

namespace core {

namespace {

const char* textOf(int number) {
    switch (number) {
    case errors::overflow:
        return "Overflow";
    case errors::subscriptOutOfRange:
        return "Subscript out of range";
    case errors::divisionByZero:
        return "Division by zero";
    case errors::typeMismatch:
        return "Type mismatch";
    case errors::badFileName:
        return "Bad file name";
    case errors::fileNotFound:
        return "File not found";
    case errors::deviceIO:
        return "Device I/O error";
    case errors::diskFull:
        return "Disk full";
    case errors::pathAccess:
        return "Path/file access error";
    case errors::diskNotReady:
        return "Disk not ready";
    case errors::badFileFormat:
        return "Invalid file format";
    case errors::keyInUse:
        return "This key is already associated with an element of this collection";
    case errors::syntax:
        return "Syntax error";
    case errors::cancelled:
        return "Cancel was selected";
    case errors::indexOutOfBounds:
        return "Index out of bounds";
    case errors::elementNotFound:
        return "Element not found";
    case errors::keyNotUnique:
        return "Key is not unique in collection";
    default:
        return "Application-defined or object-defined error";
    }
}

} // namespace

void raise(int number, const std::string& detail) {
    std::string text = textOf(number);
    if (!detail.empty()) text += ": " + detail;
    throw RunTimeError(number, text);
}

} // namespace core
