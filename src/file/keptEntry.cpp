#include "file/keptEntry.h"

namespace file {

KeptEntry keepEntry(const Zip& archive, const std::string& name) {
    KeptEntry entry{name, {}, archive.readEntry(name, Zip::maxFileBytes)};
    for (int i = 0; i < archive.FileCount(); ++i)
        if (archive.FileNameAt(i) == name) entry.comment = archive.commentAt(i);
    return entry;
}

void putBack(Zip& archive, const KeptEntry& entry) {
    if (entry.bytes)
        archive.addBuffer(entry.name, *entry.bytes, entry.comment);
    else
        archive.DeleteFile(entry.name);
}

} // namespace file
