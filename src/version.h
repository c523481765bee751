#pragma once

// The program's version; the resource compiler reads this file too.
#define TARVIK_VERSION_COMMAS 1, 0, 0
#define TARVIK_VERSION_TEXT "1.0.0"
