#pragma once

#include "core/text.h"
#include "file/archive/zip.h"
#include "raised.h"
#include "scriptedPlatform.h"
#include "table.h"

#include <gtest/gtest.h>
#include <set>

struct FolderTest : testing::Test, TestFolder {
    // All that is below the folder, "a.fwk link@ out/ out/x.jpg ".
    [[nodiscard]] std::string tree() const {
        std::set<std::string> names;
        for (const auto& each : fs::recursive_directory_iterator(folder))
            names.insert(each.path().lexically_relative(folder).string() + (each.is_symlink()     ? "@ "
                                                                            : each.is_directory() ? "/ "
                                                                                                  : " "));
        std::string all;
        for (const std::string& name : names) all += name;
        return all;
    }
};
