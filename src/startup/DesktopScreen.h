#pragma once

// The screen of this session: the primary monitor.
namespace tarvik::desktopScreen {

// Its colour depth. Each call takes a device context of the whole screen and keeps it for the rest of the run
// (deliberate: oddities 1). The start-up asks twice and never again.
int BitsPerPixel();
int Width();   // in pixels
int Height();  // in pixels

}  // namespace tarvik::desktopScreen
