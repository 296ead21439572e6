#include "core/layoutObjects.h"

namespace core {

void LayoutObjects::unloadAll() {
    layoutField.unloadAll();
    tLabel.unloadAll();
    pbLine.unloadAll();
    vLine.unloadAll();
    pBox.unloadAll();
    imgHolder.unloadAll();
    clipPic.unloadAll();
}

int LayoutObjects::count() const {
    return layoutField.count() + tLabel.count() + pbLine.count() + vLine.count() + pBox.count() +
           imgHolder.count() + clipPic.count();
}

} // namespace core
