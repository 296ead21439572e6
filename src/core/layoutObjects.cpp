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

} // namespace core
