#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

namespace tarvik::end_to_end {

// The real mouse and keyboard. Input goes through the system's own queue to the window under the pointer or the
// foreground window, exactly as a user's does. The caller waits for its effects.

// Keys held down while the mouse or another key is used: VK_CONTROL, VK_SHIFT, VK_MENU.
using HeldKeys = std::initializer_list<WORD>;

void MovePointer(POINT point);
// A separate click or double click: if it follows another one at the same point, it waits until the two no longer count
// as one double click.
void Click(POINT point, HeldKeys held = {});
void DoubleClick(POINT point, HeldKeys held = {});
// A double click whose second press is held until ReleaseLeft, wherever the pointer is by then.
void DoubleClickAndHold(POINT point);
void ReleaseLeft(POINT point);
void RightClick(POINT point);
// Presses the left button at one point and releases it at the other.
void Drag(POINT from, POINT to);
// Presses the left button at one point and moves to the other; the button stays down until ReleaseLeft.
void DragAndHold(POINT from, POINT to);
// Turns the wheel; positive notches turn it away from the user.
void TurnWheel(POINT point, int notches);
POINT MiddleOf(const RECT& bounds);

// Presses and releases a key (a VK_ code) the given number of times.
void PressKey(WORD key, HeldKeys held = {}, int times = 1);
// Types text, UTF-8, as an input method does.
void TypeText(const std::string& text);

}  // namespace tarvik::end_to_end
