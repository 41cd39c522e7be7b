// Dialog templates without resource scripts.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// A dialog template made in memory, item by item.
class DialogTemplate {
public:
    /// A popup dialog of `width` x `height` dialog units.
    DialogTemplate(short width, short height);

    /// Adds a child of a window class, at a place of dialog units.
    void AddItem(const char* window_class, WORD id, short x, short y, short width, short height,
                 DWORD style = WS_CHILD | WS_VISIBLE, const char* text = "");

    /// The template; valid until the next AddItem().
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    void Append(const void* data, std::size_t bytes);
    void AppendText(const char* text);

    std::vector<WORD> m_words;
};
