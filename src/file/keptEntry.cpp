#include "file/keptEntry.h"

namespace file {

KeptEntry keepEntry(const Zip& archive, const std::string& name) {
    return {name, archive.commentOf(name), archive.readEntry(name, Zip::maxFileBytes)};
}

void putBack(Zip& archive, const KeptEntry& entry) {
    if (entry.bytes)
        archive.addBuffer(entry.name, *entry.bytes, entry.comment);
    else
        archive.DeleteFile(entry.name);
}

} // namespace file
