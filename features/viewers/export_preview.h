#pragma once

class Image;

// Shows the sheet about to be exported in a 512 x 512 area, centred where it
// is smaller and cut (with a red mark on the cut edge) where it is larger,
// under the button "Export as .bmp". True when the user chose to export.
bool show_export_preview(const Image& sheet);
