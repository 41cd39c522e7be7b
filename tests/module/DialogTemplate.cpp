// The memory layout of dialog templates.
#include "tests/module/DialogTemplate.h"

#include <cstring>

DialogTemplate::DialogTemplate(short width, short height) {
    DLGTEMPLATE header = {};
    header.style = WS_POPUP | WS_VISIBLE | DS_MODALFRAME;
    header.cx = width;
    header.cy = height;
    Append(&header, sizeof header);
    m_words.insert(m_words.end(), {0, 0, 0}); // no menu, the dialog class, no title
}

void DialogTemplate::AddItem(const char* window_class, WORD id, short x, short y, short width, short height,
                             DWORD style, const char* text) {
    if (m_words.size() % 2 != 0)
        m_words.push_back(0);
    DLGITEMTEMPLATE item = {};
    item.style = style;
    item.id = id;
    item.x = x;
    item.y = y;
    item.cx = width;
    item.cy = height;
    Append(&item, sizeof item);
    AppendText(window_class);
    AppendText(text);
    m_words.push_back(0); // no creation data
    auto* header = reinterpret_cast<DLGTEMPLATE*>(m_words.data());
    ++header->cdit;
}

void DialogTemplate::Append(const void* data, std::size_t bytes) {
    const std::size_t at = m_words.size();
    m_words.resize(at + bytes / sizeof(WORD));
    std::memcpy(&m_words[at], data, bytes);
}

void DialogTemplate::AppendText(const char* text) {
    for (; *text != '\0'; ++text)
        m_words.push_back(static_cast<unsigned char>(*text));
    m_words.push_back(0);
}
