#include "printRecorder.h"
#include "shell/commands.h"

#include <gtest/gtest.h>

namespace {

// A printer that is not closed leaves an older file as it was.
TEST(FailedPrint, AReportIsToldOnceAndItsPrinterNotClosed) {
    PrintProgram program;
    program.openRecords(2);
    program.app.document.reportData.reportLeftMargin = 1e6F;
    shell::runCommand(program.app, "All_As_Report");
    ASSERT_EQ(program.platform.messages.size(), 1U);
    EXPECT_EQ(program.platform.messages[0].caption, "Printer Not Installed");
    EXPECT_FALSE(program.platform.printed.closed);
    program.app.document.reportData.reportLeftMargin = 1;
    shell::runCommand(program.app, "All_As_Report");
    EXPECT_TRUE(program.platform.printed.closed);
}

} // namespace
