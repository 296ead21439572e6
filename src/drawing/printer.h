#pragma once

#include "drawing/drawTarget.h"

#include <memory>
#include <optional>

namespace drawing {

// A printer of a front end that shows no dialogs.
class Printer {
public:
    virtual ~Printer() = default;
    virtual std::string DeviceName() const = 0;
    virtual TextMetrics& textMetrics() = 0;
    virtual std::unique_ptr<DrawTarget> open(const std::string& documentName) = 0;
    // The natural size of a picture that it could print, in twips.
    virtual std::optional<Extent> pictureExtent(const std::filesystem::path& picture) = 0;
};

} // namespace drawing
