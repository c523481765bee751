#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

namespace tarvik::end_to_end {

// The real mouse and keyboard. Input goes through the system's own queue to the window under the pointer or the one in
// front, exactly as a user's does; what it causes is waited for by whoever asks.

// Keys held down while the mouse or another key is used: VK_CONTROL, VK_SHIFT, VK_MENU.
using HeldKeys = std::initializer_list<WORD>;

void MovePointer(POINT place);
// A click or double click of its own: soon after another one at the same place it waits until the two no longer count
// as one double click.
void Click(POINT place, HeldKeys held = {});
void DoubleClick(POINT place, HeldKeys held = {});
// A double click whose second press is held until ReleaseLeft, wherever the pointer is by then.
void DoubleClickAndHold(POINT place);
void ReleaseLeft(POINT place);
void RightClick(POINT place);
// Presses the left button at one place and releases it at the other.
void Drag(POINT from, POINT to);
// Presses it at one place and holds it at the other until ReleaseLeft.
void DragAndHold(POINT from, POINT to);
// Turns the wheel; positive notches turn it away from the user.
void TurnWheel(POINT place, int notches);
POINT MiddleOf(const RECT& place);

// Presses and releases a key (a VK_ code) as often as said.
void PressKey(WORD key, HeldKeys held = {}, int times = 1);
// Types text, UTF-8, as an input method does.
void TypeText(const std::string& text);

}  // namespace tarvik::end_to_end
