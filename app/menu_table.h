// The whole menu of the main window, as data.
#pragma once

#include <span>

struct MenuEntry
{
    int depth;            // 0 is a menu of the bar; an entry before a deeper one is a submenu
    const char* name;     // system name of menu or entry
    const char* caption;  // with its keys
    const char* screen = "";
    const char* right = "";  // code tested before the screen opens; blank: the screen may test
    const char* mode = "";   // what the screen is told, where it serves several entries
};

std::span<const MenuEntry> menuTable();

// The entries of the menu that stands at `index`, at any depth below it.
std::span<const MenuEntry> entriesBelow(std::size_t index);

// Utilities have the job site in their caption.
bool isUtility(const MenuEntry& entry);

// Most entries open a new screen each time; of these there is one only.
bool opensOneScreenOnly(const MenuEntry& entry);
