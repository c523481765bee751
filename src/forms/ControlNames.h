#pragma once

#include <windows.h>

namespace tarvik {

// Gives the controls of a window made from a template their names for screen readers.
//
// A control without a text of its own is named by the static text directly before it in the template, which may be
// invisible. The system does that for most controls. For scroll bars, toolbars and status bars it uses other names, so
// each control after an invisible label also gets the label's text as its name from the system's annotation service.
// That happens at the first request for the control's accessible object: a start without a screen reader does not wait
// for it, and the labels have their texts by then.
void NameControls(HWND window);

}  // namespace tarvik
