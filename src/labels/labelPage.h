#pragma once

#include "core/layoutObjects.h"
#include "core/pageSettings.h"
#include "labels/labelStocks.h"

#include <optional>

namespace labels {

// How the told way of placing layouts is made to find the places of the stock. There is one spacing for both
// directions, half of which it adds to the margin.
struct ToldPage {
    double spacing = 0; // whole twips
    double left = 0, top = 0, right = 0, bottom = 0;
    double extentX = 0, extentY = 0; // of the layout, from the margins' corner
};
ToldPage toldPage(const LabelStock& stock);
// The page that has the first label in its corner, as the file keeps it.
core::LayoutOptions labelPage(const LabelStock& stock);

// How far the labels would be from their places, in millimetres, for a program that knows the page and the
// design, but not the stock: the most of all. Nothing when more or fewer of them would come out.
std::optional<double> deviation(const LabelStock& stock, const core::LayoutObjects& objects);

} // namespace labels
