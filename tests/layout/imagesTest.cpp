#include "layout/images.h"
#include "layout/keptPictures.h"
#include "layout/storedPictures.h"
#include "raised.h"
#include "sheetFixture.h"

namespace {

struct Images : Sheet {
    void openImages(bool designing = false) {
        platform.pictures["bolt.jpg"] = {1500, 1500};
        openSheet("P|Photo|0|0|1815|1575|;P|Second_Photo|0|2000|1815|1575|;C|art.gif|3000|0|2175|1815|",
                  designing);
    }
    // The name of each picture, and the file that is shown for it: "bolt.jpg/bolt.jpg /- ".
    std::string shown() {
        std::string all;
        const auto add = [&](const std::string& name, const std::filesystem::path& file) {
            const bool inWork = file.empty() || file.parent_path() == platform.tempFolder();
            all +=
                name + (inWork ? "/" : "/outside ") + (file.empty() ? "-" : file.filename().string()) + " ";
        };
        objects.imgHolder.forEach([&](const auto& each) { add(each.ToolTipText, each.viewImage.path); });
        objects.clipPic.forEach([&](const auto& each) { add(each.Tag, each.clipImage.path); });
        return all;
    }
    // Double-clicks a picture, chooses a file, and returns what was told.
    std::string choose(const char* name, const std::string& file) {
        platform.files = {file.empty() ? file : path(file)};
        after(std::string(name) + " dblclick");
        return told();
    }
};

// By the height, which leaves two twips; when that is too wide, by the width, which leaves one.
TEST_F(Images, AreFittedToTheTwip) {
    const core::ImgHolder holder = objects.imgHolder.templateElement(); // 1815 x 1575
    for (const auto& c : table("1814 1574 -> 1 1 1814 1574; 100 1575 -> 858 1 100 1573 s; 30000 1500 -> 1 "
                               "742 1814 91 s; 1815 100 -> 1 738 1814 100 s")) {
        drawing::Extent natural;
        std::istringstream(c[0]) >> natural.Width >> natural.Height;
        core::FittedImage image;
        layout::fitImage(app, holder, image, platform.pictureFile("any.jpg", natural));
        EXPECT_EQ(texts({std::round(image.Left), std::round(image.Top), std::round(image.Width),
                         std::round(image.Height)}) +
                      (image.Stretch ? " s" : ""),
                  c[1]);
    }
}

// A cell is a bare name: it leads nowhere else. What was unpacked before needs no archive.
TEST_F(Images, OfTheRecordThatIsShown) {
    openImages();
    platform.pictureFile("outside.jpg", {1500, 1500});
    for (const auto& c :
         table("bolt.jpg -> bolt.jpg; gone.jpg -> -; ../../outside.jpg -> -; bolt.jpg -> bolt.jpg")) {
        app.document.LV.at(1).cells[5] = c[0];
        layout::InitLayout(app, false);
        EXPECT_EQ(shown(), c[0] + "/" + c[1] + " /- art.gif/- ");
        std::filesystem::remove(app.document.currentFile);
    }
    EXPECT_EQ(told(), "");
    // One byte of each image's contents is another one: the checksum tells, and the holder stays empty.
    platform.pictures["art.gif"] = {1500, 1500};
    openImages();
    EXPECT_EQ(shown(), "bolt.jpg/bolt.jpg /- art.gif/art.gif ");
    const std::string file = app.document.currentFile;
    std::string bytes = ScriptedPlatform::read(file);
    for (const std::string name : {"bolt.jpg", "art.gif"}) bytes[bytes.find(name) + name.size() + 4] ^= 0x10;
    ScriptedPlatform::write(file, bytes);
    open(file);
    shell::SSTab1_Click(app, app::layoutTab);
    EXPECT_EQ(shown(), "bolt.jpg/- /- art.gif/- ");
    EXPECT_FALSE(std::filesystem::exists(platform.tempFolder() / "bolt.jpg"));
}

TEST_F(Images, AreChosenForARecordOrAsClipArt) {
    for (const char* name : {"photo.png", "photo.JPG", "photo.gif"})
        platform.pictureFile(name, {1500, 1500}, name);
    for (const char* name : {"text.jpg", "vast.GIF"})
        ScriptedPlatform::write(platform.folder / name, "no picture");
    platform.tooLarge = "vast.GIF";
    for (const bool designing : {false, true}) {
        openImages(designing);
        const char* const name = designing ? "clipPic,1" : "imgHolder,2";
        dialogs();
        choose(designing ? "imgHolder,2" : "clipPic,1", "photo.JPG");
        EXPECT_EQ(dialogs(), ""); // that is the other mode's
        for (const auto& c : table("photo.png -> other;  -> other; text.jpg -> cannot be read.; none.jpg -> "
                                   "cannot be read: No such file or directory.; vast.GIF -> is too large."))
            EXPECT_EQ(choose(name, c[0]),
                      c[1] == "other" ? "i You selected a file other than a GIF or JPEG.  Please try again."
                                      : "! The picture " + c[0] + " " + c[1]);
        dialogs();
        ScriptedPlatform::write(platform.tempFolder() / "photo.JPG", "another record's");
        EXPECT_EQ(choose(name, "photo.JPG"), "");
        EXPECT_EQ(dialogs(), std::string("Select image for ") + (designing ? "clip art." : "picture box.") +
                                 "//Jpeg Images (*.jpg)|*.jpg|GIF Images (*.gif)|*.gif");
        const std::string now = designing ? "bolt.jpg/- /- photo.JPG/photo.JPG "
                                          : "bolt.jpg/bolt.jpg photo.JPG/outside photo.JPG art.gif/- ";
        EXPECT_EQ(shown(), now);
        EXPECT_EQ(entry("photo.JPG"), "photo.JPG"); // at once
        file::Zip Zip;
        Zip.OpenArchive(app.document.currentFile);
        EXPECT_EQ(Zip.commentAt(3), designing ? "Clip Art" : "");
        EXPECT_EQ(app.document.LV.at(1).cells[6], ""); // the cell waits for Update
        // What was unpacked under that name was the old one.
        EXPECT_EQ(ScriptedPlatform::read(platform.tempFolder() / "photo.JPG"), designing ? "photo.JPG" : "");
        std::filesystem::remove(app.document.currentFile); // and cannot take another one
        EXPECT_TRUE(
            choose(name, "photo.gif").starts_with("! The picture could not be added to the database: "));
        EXPECT_EQ(shown(), now);
    }
}

TEST_F(Images, TheClipboardFillsThePictureThatIsSelected) {
    openImages();
    for (const char* clipboard : {"", "bitmap"}) { // first it holds a text
        EXPECT_EQ(shown(), "bolt.jpg/bolt.jpg /- art.gif/- ");
        platform.clipboardPicture = clipboard;
        after("imgHolder,2 select");
        layout::mnuImportImage_Click(app);
    }
    EXPECT_EQ(shown(), "bolt.jpg/bolt.jpg cbHolder/clipboard-2.bmp art.gif/- ");
    after("design clipPic,1 select");
    layout::mnuImportImage_Click(app);
    const std::string name = objects.clipPic[1].Tag;
    EXPECT_EQ(shown(), "bolt.jpg/- cbHolder/- " + name + "/" + name + " "); // the other one waits
    EXPECT_EQ(entry(name) + told(), "quality 75 of bitmap");                // at once
}

// A picture that is dropped on a holder is one of the record that is shown, as long as nothing is designed.
TEST_F(Images, AreDroppedWhereThereIsAPicture) {
    openImages();
    for (const char* name : {"new.gif", "new-2.gif", "new-3.gif"}) platform.pictures[name] = {3000, 1500};
    const auto drop = [&](int index, const char* name, const char* bytes) {
        const std::string stored = layout::takePicture(app, index, name, bytes).value_or("-") + " ";
        return stored + shown().substr(18) + told();
    };
    EXPECT_EQ(drop(3, "new.gif", "one"), "- /- art.gif/- ");
    EXPECT_EQ(drop(2, "new.png", "one"), "- /- art.gif/- ! The picture new.png cannot be read.");
    EXPECT_EQ(drop(2, "new.gif", "one"), "new.gif new.gif/new.gif art.gif/- ");
    EXPECT_EQ(drop(2, "new.gif", "two"), "new-2.gif new-2.gif/new-2.gif art.gif/- ");
    EXPECT_EQ(entry("new.gif") + entry("new-2.gif"), "onetwo");
    app.mainFrm.bReadOnly = true;
    EXPECT_TRUE(drop(2, "new.gif", "three").ends_with("sheet.fwk is open to read only"));
    after("design");
    EXPECT_FALSE(layout::takesPicture(app, 2));
}

// What is saved keeps its picture, and what went can come back.
TEST_F(Images, AreStoredTogetherAndLeaveWhenNothingNamesThem) {
    openImages();
    std::string log;
    app.changes.follow({app::Change::Writing, app::Change::Written}, [&](auto&) { log += "write "; });
    const auto store = [&](const std::vector<layout::NewPicture>& pictures, bool bDrop) {
        layout::keptPictures(app).isKept = bDrop; // an undo
        layout::storePictures(app, pictures, [&](std::string_view name) { return bDrop && name != "b.gif"; });
        std::string all = std::exchange(log, {});
        for (const char* name : {"a.gif", "b.gif", "olt.jpg", "bolt.jpg"}) all += entry(name) + " ";
        return all;
    };
    const std::string saved = "bytes of bolt.jpg ";
    EXPECT_EQ(
        store({{"a.gif", "A"}, {"b.gif", "B"}, {"olt.jpg", "C"}, {"bolt.jpg", "?"}, {"a.gif", "?"}}, false),
        "write write A B C " + saved);
    EXPECT_EQ(store({{"a.gif", "?"}}, false), "A B C " + saved);
    EXPECT_EQ(store({{"d.gif", "D"}}, true), "write write (none) B (none) " + saved);
    layout::takeBackPictures(app);
    EXPECT_EQ(store({{"b.gif", "?"}}, false) + entry("d.gif"), "A B C " + saved + "(none)");
    app.mainFrm.bReadOnly = true;
    EXPECT_EQ(raisedBy([&] { store({{"d.gif", "D"}}, false); }), core::errors::pathAccess);
}

} // namespace
