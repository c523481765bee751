#pragma once

// The primary monitor.
namespace tarvik::desktopScreen {

// The colour depth in bits per pixel. Each call takes a device context of the whole screen and never releases it
// (deliberate: oddities 1). It is called twice at start-up and never again.
int BitsPerPixel();
int Width();   // in pixels
int Height();  // in pixels

}  // namespace tarvik::desktopScreen
