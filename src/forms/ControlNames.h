#pragma once

#include <windows.h>

namespace tarvik {

// Gives the controls of a window made from a template their names for whoever has the screen read aloud.
//
// A control without a text of its own is named by the static text directly before it in the template, which need not be
// visible. The system sees to that for most controls. It has other names for scroll bars, toolbars and status bars, so
// each control behind a label that is not visible also gets the label's text as its name from the system's annotation
// service. That happens when somebody asks for the control for the first time: a start without a screen reader does not
// wait for it, and the labels have their texts by then.
void NameControls(HWND window);

}  // namespace tarvik
