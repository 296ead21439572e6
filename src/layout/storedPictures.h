#pragma once

#include "app/app.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace layout {

struct NewPicture {
    std::string name, bytes;
};

// Puts pictures into the open file in one write, all of them or none. What is there already by that name
// stays; a name stands for its bytes. `goes` says which pictures are of no use any more: they leave the file,
// unless what is saved names them. An undo puts everything back. Raises RunTimeError when the file cannot be
// written.
void storePictures(app::App& app, const std::vector<NewPicture>& pictures,
                   const std::function<bool(std::string_view name)>& goes = {});

// Takes back what commands have put into the open file since it was asked to be kept (see keptPictures),
// where what should have followed failed.
void takeBackPictures(app::App& app);

} // namespace layout
