#include "sheetFixture.h"

#include "layout/images.h"

namespace {

const char* const lines =
    "P|Photo|0|0|1815|1575|\r\nP|Second_Photo|0|2000|1815|1575|\r\nC|art.gif|3000|0|2175|1815|\r\n";

TEST_F(Sheet, ImagesAreFittedToTheTwip) {
    struct Case {
        drawing::Extent natural;
        float left, top, width, height;
        bool stretched;
    };
    // In a holder of 1815 x 1575.
    const Case cases[] = {
        {{100, 100}, 857.5F, 737.5F, 100, 100, false},
        {{1814, 1574}, 0.5F, 0.5F, 1814, 1574, false},
        {{100, 1575}, 857.563492F, 1, 99.8730159F, 1573, true},    // as high as the holder
        {{3000, 3000}, 121, 1, 1573, 1573, true},                  // by the height: two twips are left
        {{30000, 1500}, 0.5F, 742.15F, 1814, 90.7F, true},         // too wide for that: one twip is left
        {{1815, 100}, 0.5F, 737.527548F, 1814, 99.9449036F, true}, // a small height is scaled up first
        {{15, 30000}, 907.10675F, 1, 0.7865F, 1573, true}};
    open();
    core::ImgHolder holder = objects.imgHolder.templateElement();
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.natural.Width << " x " << c.natural.Height);
        const std::string file = platform.pictureFile("any.jpg", c.natural);
        core::FittedImage image;
        layout::fitImage(app, holder, image, file);
        EXPECT_EQ(image.path, file);
        EXPECT_FLOAT_EQ(image.Width, c.width);
        EXPECT_FLOAT_EQ(image.Height, c.height);
        EXPECT_FLOAT_EQ(image.Left, c.left);
        EXPECT_FLOAT_EQ(image.Top, c.top);
        EXPECT_EQ(image.Stretch, c.stretched);
        // Nothing, a missing file, a folder, and what is no picture leave the holder empty.
        ScriptedPlatform::write(platform.folder / "text.jpg", "no picture");
        for (const std::filesystem::path& none : {std::filesystem::path(), platform.folder / "none.jpg",
                                                  platform.folder, platform.folder / "text.jpg"}) {
            image.path = "old";
            layout::fitImage(app, holder, image, none);
            EXPECT_EQ(image.path, "");
        }
    }
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Sheet, RecordsShowTheirImages) {
    platform.pictures["bolt.jpg"] = {1500, 1500};
    open(lines);
    const core::ImgHolder& photo = objects.imgHolder[1];
    EXPECT_EQ(photo.viewImage.path, platform.tempFolder() / "bolt.jpg");
    EXPECT_EQ(objects.imgHolder[2].viewImage.path, "");
    app.document.LV.setSelectedItem(&app.document.LV.at(3));
    layout::InitLayout(app, false); // an image that the archive does not hold
    EXPECT_EQ(photo.viewImage.path, "");
    EXPECT_EQ(photo.ToolTipText, "gone.jpg");
    EXPECT_TRUE(platform.messages.empty());
    // A cell is a bare name: it leads nowhere else.
    platform.pictureFile("outside.jpg", {1500, 1500});
    app.document.LV.at(3).cells[5] = "../../outside.jpg";
    layout::InitLayout(app, false);
    EXPECT_EQ(photo.viewImage.path, "");
    // Without its archive the database can be looked at all the same.
    std::filesystem::remove(app.document.currentFile);
    app.document.LV.setSelectedItem(&app.document.LV.at(1));
    layout::InitLayout(app, false);
    EXPECT_EQ(photo.viewImage.path, platform.tempFolder() / "bolt.jpg"); // unpacked before
}

TEST_F(Sheet, ADamagedImageLeavesItsHolderEmpty) {
    platform.pictures["bolt.jpg"] = {1500, 1500};
    platform.pictures["art.gif"] = {1500, 1500};
    DataFile data({{"Photo", 7}, {"Second_Photo", 7}});
    data.layout = lines;
    data.rows = "bolt.jpg|bolt.jpg|\r\n";
    data.addTotals();
    const std::string file = program.make("sheet.fwk", data.text(), {"bolt.jpg", "art.gif"});
    // One byte of each image's contents is another one: the checksum tells.
    std::string bytes = ScriptedPlatform::read(file);
    for (const std::string name : {"bolt.jpg", "art.gif"}) {
        const std::size_t place = bytes.find(name); // the contents follow the first mention
        ASSERT_NE(place, std::string::npos);
        bytes[place + name.size() + 4] ^= 0x10;
    }
    ScriptedPlatform::write(file, bytes);
    program.open(file);
    EXPECT_EQ(app.document.currentFile, file); // the open has gone on
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_EQ(objects.imgHolder[1].viewImage.path, "");
    EXPECT_EQ(objects.clipPic[1].clipImage.path, "");
    EXPECT_FALSE(std::filesystem::exists(platform.tempFolder() / "bolt.jpg"));
}

TEST_F(Sheet, ChoosingAPictureForARecord) {
    open(lines);
    const core::ImgHolder& holder = objects.imgHolder[2];
    const char* const refusal = "You selected a file other than a GIF or JPEG.  Please try again.";
    for (const char* name : {"photo.jpeg", "photo.png", "readme.txt"}) {
        platform.files.push_back(platform.pictureFile(name, {1500, 1500}));
        layout::object_DblClick(app, {Family::imgHolder, 2});
        EXPECT_EQ(platform.lastMessage(), refusal) << name;
    }
    layout::object_DblClick(app, {Family::imgHolder, 2}); // cancelled
    EXPECT_EQ(platform.lastMessage(), refusal);
    ScriptedPlatform::write(platform.folder / "text.jpg", "no picture");
    ScriptedPlatform::write(platform.folder / "vast.GIF", "picture");
    platform.tooLarge = "vast.GIF";
    for (const auto& [name, message] :
         {std::pair("text.jpg", "The picture text.jpg cannot be read."),
          {"none.jpg", "The picture none.jpg cannot be read: No such file or directory."},
          {"vast.GIF", "The picture vast.GIF is too large."}}) {
        platform.files = {(platform.folder / name).string()};
        layout::object_DblClick(app, {Family::imgHolder, 2});
        EXPECT_EQ(platform.lastMessage(), message);
    }
    EXPECT_EQ(holder.ToolTipText, "");
    EXPECT_EQ(platform.dialogs.back().title, "Select image for picture box.");
    EXPECT_EQ(platform.dialogs.back().filter, "Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif");

    ScriptedPlatform::write(platform.tempFolder() / "photo.JPG", "another record's");
    platform.files.push_back(platform.pictureFile("photo.JPG", {1500, 1500}, "first"));
    layout::object_DblClick(app, {Family::imgHolder, 2});
    EXPECT_EQ(holder.ToolTipText, "photo.JPG");
    EXPECT_EQ(holder.viewImage.Left, 157.5F);
    EXPECT_EQ(entry("photo.JPG"), "first");                                     // at once
    EXPECT_EQ(app.document.LV.at(1).cells[6], "");                              // the cell waits for Update
    EXPECT_FALSE(std::filesystem::exists(platform.tempFolder() / "photo.JPG")); // it was the old one

    design();
    const std::size_t asked = platform.dialogs.size();
    layout::object_DblClick(app, {Family::imgHolder, 2});
    EXPECT_EQ(platform.dialogs.size(), asked);
}

TEST_F(Sheet, ChoosingClipArt) {
    open(lines);
    layout::object_DblClick(app, {Family::clipPic, 1});
    EXPECT_TRUE(platform.dialogs.empty()); // not while browsing
    design();
    platform.files.push_back(platform.pictureFile("logo.gif", {1500, 1500}, "logo"));
    layout::object_DblClick(app, {Family::clipPic, 1});
    EXPECT_EQ(platform.dialogs.back().title, "Select image for clip art.");
    EXPECT_EQ(objects.clipPic[1].Tag, "logo.gif");
    EXPECT_EQ(objects.clipPic[1].clipImage.path, platform.tempFolder() / "logo.gif");
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    EXPECT_EQ(Zip.FileNameAt(3), "logo.gif");
    EXPECT_EQ(Zip.commentAt(3), "Clip Art");
    layout::object_DblClick(app, {Family::clipPic, 1}); // cancelled
    EXPECT_EQ(objects.clipPic[1].Tag, "logo.gif");
}

TEST_F(Sheet, AnArchiveThatTakesNoPictureIsTold) {
    open(lines);
    std::filesystem::remove(app.document.currentFile);
    for (const bool designing : {false, true}) {
        if (designing) design();
        platform.files.push_back(platform.pictureFile("photo.jpg", {1500, 1500}));
        layout::object_DblClick(app, {designing ? Family::clipPic : Family::imgHolder, 1});
        EXPECT_EQ(platform.messages.back().icon, platform::Icon::Exclamation);
    }
    EXPECT_EQ(objects.imgHolder[1].ToolTipText, "bolt.jpg");
    EXPECT_EQ(objects.clipPic[1].Tag, "art.gif");
}

TEST_F(Sheet, TheClipboardFillsThePictureThatIsSelected) {
    open(lines);
    layout::select(app, {Family::imgHolder, 2});
    layout::mnuImportImage_Click(app); // the clipboard holds a text
    EXPECT_EQ(objects.imgHolder[2].ToolTipText, "");
    platform.clipboardPicture = "bitmap";
    layout::mnuImportImage_Click(app);
    EXPECT_EQ(objects.imgHolder[2].ToolTipText, "cbHolder");
    EXPECT_EQ(objects.imgHolder[2].viewImage.Width, 1814);
    file::Zip Zip;
    Zip.OpenArchive(app.document.currentFile);
    EXPECT_EQ(Zip.FileCount(), 3); // nothing is stored yet
    Zip.CloseArchive();

    design();
    layout::select(app, {Family::clipPic, 1});
    layout::mnuImportImage_Click(app);
    const std::string name = objects.clipPic[1].Tag;
    EXPECT_TRUE(name.starts_with("cb") && name.ends_with(".jpg")) << name;
    EXPECT_EQ(entry(name), "quality 75 of bitmap"); // at once
    EXPECT_EQ(objects.clipPic[1].clipImage.path, platform.tempFolder() / name);
    layout::addBox(app);
    layout::mnuImportImage_Click(app);
    EXPECT_TRUE(platform.messages.empty());
}

} // namespace
