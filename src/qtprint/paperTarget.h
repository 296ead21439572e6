#pragma once

#include "qtprint/pagePainter.h"

#include <QPagedPaintDevice>
#include <QPainter>

namespace qtprint {

// Draws on the sheets of a Qt device: a PDF file, or a printer.
class PaperTarget : public drawing::DrawTarget {
public:
    // In one file the jobs follow each other; a printer gets each by itself.
    enum class Jobs { InOneFile, EachByItself };

    PaperTarget(QPagedPaintDevice& device, drawing::TextMetrics& metrics, Jobs jobs)
        : device_(device), metrics_(metrics), jobs_(jobs) {}

    bool isPrinter() const override { return true; }
    bool close() override;

protected:
    // The paper of the device. Some devices have papers of their own for it.
    virtual void choosePaper(const drawing::PageSetup& setup);

    drawing::TextMetrics& metrics() override { return metrics_; }
    void pageSet(const drawing::PageSetup& setup) override { choosePaper(setup); }
    void drawText(float x, float y, std::string_view text) override;
    void drawLine(float x1, float y1, float x2, float y2) override;
    void drawRectangle(float left, float top, float width, float height) override;
    void drawPicture(const std::filesystem::path& picture, float left, float top, float width,
                     float height) override;
    void startSheet() override;
    void endDocument() override;
    bool hasSheets() const { return hasSheets_; } // ever begun

private:
    QPainter& sheet(); // the painter, on a sheet

    QPagedPaintDevice& device_;
    drawing::TextMetrics& metrics_;
    Jobs jobs_;
    QPainter painter_;
    PagePainter page_;
    bool onSheet_ = false;
    bool hasSheets_ = false;
    bool failed_ = false;
};

} // namespace qtprint
