#include "fwkProgram.h"

#include <zip.h>

namespace {

std::string repeated(const std::string& text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

class BadInput : public FwkTest {
protected:
    // Whatever the file is, no command crashes on it or changes anything by reading it; those that change or
    // copy it do their work, or fail and leave all as it was. What check finds and says is returned.
    std::string use(const std::string& bytes, const std::string& what) {
        for (const std::string command :
             {"info b.fwk", "records b.fwk --json", "sort b.fwk Name", "save-as b.fwk new.fwk",
              "clone b.fwk new.fwk", "recalculate b.fwk", "total b.fwk",
              "column add b.fwk Added:Number --auto", "add b.fwk Name=x", "update b.fwk i1 Name=y",
              "duplicate b.fwk i1 2", "delete b.fwk i1", "column remove b.fwk Name --yes"}) {
            ScriptedPlatform::write(path("b.fwk"), bytes);
            FolderWatch watch(world);
            const Outcome outcome = run("fwk " + command);
            const bool isRefused =
                outcome.code == 1 && ("\n" + outcome.err).find("\nfwk: ") != std::string::npos;
            EXPECT_TRUE(isRefused || outcome.code == 0) << what << command << outcome.code << outcome.err;
            if (isRefused || command.starts_with("info") || command.starts_with("records")) {
                EXPECT_EQ(watch.changes(), "") << what << command;
            }
            std::filesystem::remove(path("new.fwk"));
        }
        ScriptedPlatform::write(path("b.fwk"), bytes);
        const Outcome outcome = run("fwk check b.fwk");
        EXPECT_EQ(outcome.code, 1) << what;
        return outcome.out + outcome.err;
    }
    std::string archiveOf(const std::string& data) {
        return ScriptedPlatform::read(program.make("b.fwk", data));
    }
};

TEST_F(BadInput, FilesThatAreNoDatabases) {
    const std::string whole = DataFile{}.text(), archive = ScriptedPlatform::read(TEST_DATA_DIR "/books.fwk");
    DataFile names, rows, types, lengths, garbage, outside;
    names.names = "Name|NAME|Price|";
    rows.rows = repeated("a|1|2|\r\n", 40'000);
    types.types = "3|4|";
    std::string damaged = archive, noData = archive;
    damaged[300] ^= 0x55;
    for (std::size_t at = 0; (at = noData.find("data.dat", at)) != std::string::npos;) noData[at] = 'D';
    lengths.rows = "a|\r\n\r\nb|1|2|3|4|\r\nno separator\r\n------|------|------|\r\n";
    garbage.objects("\x01\x02garbage|||").section("Future Thing", "x|\r\nnoise");
    garbage.section("Locks", "pBox,99999999999|nonsense|");
    // libzip itself takes every name.
    const std::string text = outside.objects("C|../x.jpg|1|2|3|4|").text(), file = program.path("unsafe");
    zip_t* zip = zip_open(file.c_str(), ZIP_CREATE, nullptr);
    zip_file_add(zip, "data.dat", zip_source_buffer(zip, text.data(), text.size(), 0), 0);
    for (const char* name : {"../x.jpg", "/etc/x.jpg", "a/b.jpg"})
        zip_file_add(zip, name, zip_source_buffer(zip, "evil", 4, 0), 0);
    ASSERT_EQ(zip_close(zip), 0);
    const struct {
        std::string bytes;
        const char* finding;
        bool opens = false;
    } cases[] = {
        {archiveOf(std::string(5000, '\0')), "the text ends too early"},
        {archiveOf(whole.substr(0, whole.find("[Begin"))), "the text ends too early"},
        {archiveOf(names.text()), "Key is not unique in collection: NAME"},
        {archiveOf(types.text()), "Subscript out of range: column Price"},
        {archiveOf(DataFile().objects("C|a.gif|1|2").text()), "Subscript out of range"},
        {archiveOf(DataFile().objects("B|1|2|x|4|5|6|").text()), "\"x\" is no number"},
        {archiveOf(rows.text()), "fwk: b.fwk: it has more than 32767 records"},
        {damaged, "fwk: b.fwk: "},
        {noData, "fwk: b.fwk: File not found: data.dat is not in the archive"},
        {"", "fwk: b.fwk: "},
        {archive.substr(0, archive.size() - 1), "fwk: b.fwk: "},
        {archive + std::string(100'000, 'x'), "fwk: b.fwk: "},
        {archiveOf(lengths.text()), "row without a separator at its end", true},
        {archiveOf(garbage.text()), "line 2: unknown layout line", true},
        {ScriptedPlatform::read(file), "entry \"a/b.jpg\" has a name that is never unpacked\n", true}};
    for (const auto& [bytes, finding, opens] : cases) {
        EXPECT_NE(use(bytes, finding).find(finding), std::string::npos) << finding;
        EXPECT_EQ(run("fwk info b.fwk").code, opens ? 0 : 1) << finding;
    }
}

// A small archive that unpacks to a lot, and a text that would take many times its size in memory.
TEST_F(BadInput, ABombIsRefusedWithinBounds) {
    {
        DataFile elements, objects, rows;
        make("elements.fwk", elements.section("InvoiceCols", repeated("|", 16'000'000)));
        objects.layout = repeated("F||0|0|0|0|0|0|0||0|0|\r\n", 640'000);
        rows.rows = repeated("a|1|2|\r\n", 2'000'000);
        make("objects.fwk", objects);
        make("rows.fwk", rows);
        std::filesystem::rename(program.make("zeros", std::string(270'000'000, '\0')), path("zeros.fwk"));
    }
    for (const std::string name : {"elements.fwk", "objects.fwk", "rows.fwk", "zeros.fwk"}) {
        EXPECT_LT(std::filesystem::file_size(path(name)), 1'000'000U) << name;
        const Outcome outcome = run("timeout 60 fwk info " + name);
        EXPECT_EQ(outcome.code, 1) << name << outcome.err;
        EXPECT_LT(outcome.maxKilobytes, 300'000) << name;
    }
}

} // namespace
