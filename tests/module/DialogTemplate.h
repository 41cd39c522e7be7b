// SPDX-License-Identifier: MIT
// Dialog templates without resource scripts.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// A dialog template made in memory, item by item.
class DialogTemplate {
public:
    /// A popup dialog of `width` x `height` dialog units.
    DialogTemplate(short width, short height) {
        Append(DLGTEMPLATE{WS_POPUP | WS_VISIBLE | DS_MODALFRAME, 0, 0, 0, 0, width, height});
        m_words.insert(m_words.end(), {0, 0, 0}); // no menu, the dialog class, no title
    }

    /// Adds a child of a window class, at a place of dialog units.
    void AddItem(const std::string& windowClass, WORD id, short x, short y, short width, short height,
                 DWORD style = WS_CHILD | WS_VISIBLE, const std::string& text = "") {
        m_words.resize((m_words.size() + 1) / 2 * 2);
        Append(DLGITEMTEMPLATE{style, 0, x, y, width, height, id});
        for (const std::string& each : {windowClass, text})
            m_words.insert(m_words.end(), each.c_str(), each.c_str() + each.size() + 1);
        m_words.push_back(0); // no creation data
        ++reinterpret_cast<DLGTEMPLATE*>(m_words.data())->cdit;
    }

    /// The template; valid until the next AddItem().
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    template <class Header> void Append(const Header& header) {
        const auto* words = reinterpret_cast<const WORD*>(&header);
        m_words.insert(m_words.end(), words, words + sizeof header / sizeof *words);
    }

    std::vector<WORD> m_words;
};
