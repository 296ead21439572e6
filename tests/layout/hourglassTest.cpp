#include "shell/program.h"
#include "app/hourglass.h"
#include "databases.h"
#include "layout/images.h"

#include <gtest/gtest.h>

namespace {

// The hourglass, as it is turned.
class Machine : public ScriptedPlatform {
public:
    void setMousePointer(platform::MousePointer pointer) override {
        pointers += pointer == platform::MousePointer::Hourglass ? "H" : "d";
    }
    std::string pointers;
};

TEST(ImageHourglass, IsThereWhileAFileIsReadAndEndsNoOther) {
    Machine machine;
    shell::Program app(machine);
    const std::string picture = machine.pictureFile("a.jpg", {300, 200});
    ScriptedPlatform::write(machine.folder / "text.jpg", "no picture");
    const auto pointersOf = [&](const std::filesystem::path& file) {
        core::FittedImage image;
        machine.pointers.clear();
        layout::fitImage(app, app.document.layout.imgHolder.templateElement(), image, file);
        return machine.pointers;
    };
    EXPECT_EQ(pointersOf(picture), "Hd");
    EXPECT_EQ(pointersOf(machine.folder / "text.jpg"), "Hd");
    EXPECT_EQ(pointersOf(machine.folder / "none.jpg"), "");
    {
        const app::Hourglass printing(app);
        EXPECT_EQ(pointersOf(picture), "");
        machine.pointers.clear();
    }
    EXPECT_EQ(machine.pointers, "d");
}

} // namespace
