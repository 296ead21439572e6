#include "core/runTimeError.h"

#include "core/translate.h"

namespace core {

namespace {

const char* textOf(int number) {
    switch (number) {
    case errors::overflow:
        return core::marked("Overflow");
    case errors::subscriptOutOfRange:
        return core::marked("Subscript out of range");
    case errors::divisionByZero:
        return core::marked("Division by zero");
    case errors::typeMismatch:
        return core::marked("Type mismatch");
    case errors::badFileName:
        return core::marked("Bad file name");
    case errors::fileNotFound:
        return core::marked("File not found");
    case errors::deviceIO:
        return core::marked("Device I/O error");
    case errors::diskFull:
        return core::marked("Disk full");
    case errors::pathAccess:
        return core::marked("Path/file access error");
    case errors::diskNotReady:
        return core::marked("Disk not ready");
    case errors::badFileFormat:
        return core::marked("Invalid file format");
    case errors::keyInUse:
        return core::marked("This key is already associated with an element of this collection");
    case errors::syntax:
        return core::marked("Syntax error");
    case errors::cancelled:
        return core::marked("Cancel was selected");
    case errors::indexOutOfBounds:
        return core::marked("Index out of bounds");
    case errors::elementNotFound:
        return core::marked("Element not found");
    case errors::keyNotUnique:
        return core::marked("Key is not unique in collection");
    default:
        return core::marked("Application-defined or object-defined error");
    }
}

} // namespace

void raise(int number, const std::string& detail) {
    std::string text = core::tr(textOf(number));
    if (!detail.empty()) text += ": " + detail;
    throw RunTimeError(number, text);
}

} // namespace core
