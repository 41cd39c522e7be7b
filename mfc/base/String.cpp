// SPDX-License-Identifier: MIT
// CString: construction, assignment, comparison, buffers. StringEdit.cpp and StringFormat.cpp have the rest.

#include <afx.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <utility>

#include <afxtempl.h>

#include "mfc/base/CaseFold.h"
#include "mfc/base/Resource.h"

namespace {

constexpr std::size_t longestText = INT_MAX - 1;

// Throws CMemoryException* for a text that is too long.
void RequireLength(std::size_t length) {
    if (length > longestText)
        AfxThrowMemoryException();
}

std::size_t LengthOf(LPCTSTR text) {
    return text == nullptr ? 0 : _tcslen(text);
}

LPCTSTR OrEmpty(LPCTSTR text) {
    return text == nullptr ? _T("") : text;
}

AfxText Assigned(LPCTSTR text, std::size_t length) {
    RequireLength(length);
    return AfxWithMemory([&] { return AfxText(text, length); });
}

#ifdef _UNICODE
using OtherChar = char;
int Convert(const char* text, int length, wchar_t* target, int room) {
    return MultiByteToWideChar(CP_ACP, 0, text, length, target, room);
}
#else
using OtherChar = wchar_t;
int Convert(const wchar_t* text, int length, char* target, int room) {
    return WideCharToMultiByte(CP_ACP, 0, text, length, target, room, nullptr, nullptr);
}
#endif

/// A text of the other character set, converted. Empty if the conversion fails.
AfxText Converted(const OtherChar* text, int length) {
    const int room = text == nullptr || length <= 0 ? 0 : Convert(text, length, nullptr, 0);
    if (room <= 0)
        return {};
    AfxText result = AfxWithMemory([&] { return AfxText(static_cast<std::size_t>(room), TCHAR{0}); });
    Convert(text, length, result.data(), room);
    return result;
}

AfxText Converted(const OtherChar* text) {
    const std::size_t length = text == nullptr ? 0 : std::char_traits<OtherChar>::length(text);
    RequireLength(length);
    return Converted(text, static_cast<int>(length));
}

AfxText Joined(LPCTSTR left, std::size_t leftLength, LPCTSTR right, std::size_t rightLength) {
    RequireLength(leftLength);
    RequireLength(leftLength + rightLength);
    return AfxWithMemory([&] {
        AfxText result;
        result.reserve(leftLength + rightLength);
        result.append(left, leftLength).append(right, rightLength);
        return result;
    });
}

int Sign(int order) {
    return (order > 0) - (order < 0);
}

} // namespace

CString::CString() noexcept = default;
CString::CString(const CString& other) : m_text(Assigned(other.m_text.data(), other.m_text.size())) {
}
CString::CString(CString&& other) noexcept : m_text(std::move(other.m_text)) {
    other.m_text.clear();
}
CString::CString(TCHAR ch, int repeat) {
    if (repeat > 0) {
        RequireLength(static_cast<std::size_t>(repeat));
        AfxWithMemory([&] { m_text.assign(static_cast<std::size_t>(repeat), ch); });
    }
}
CString::CString(LPCTSTR text) {
    if (text != nullptr && IS_INTRESOURCE(text))
        LoadResource(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    else
        m_text = Assigned(OrEmpty(text), LengthOf(text));
}
CString::CString(const OtherChar* text) {
    if (text != nullptr && IS_INTRESOURCE(text))
        LoadResource(LOWORD(reinterpret_cast<UINT_PTR>(text)));
    else
        m_text = Converted(text);
}
CString::CString(const unsigned char* text) : CString(reinterpret_cast<LPCSTR>(text)) {
}
CString::CString(LPCTSTR text, int length) {
    if (text != nullptr && length > 0)
        m_text = Assigned(text, static_cast<std::size_t>(length));
}
CString::CString(const OtherChar* text, int length) : m_text(Converted(text, length)) {
}
CString::~CString() = default;

CString& CString::operator=(const CString& other) {
    if (this != &other)
        AfxWithMemory([&] { m_text = other.m_text; });
    return *this;
}
CString& CString::operator=(CString&& other) noexcept {
    if (this != &other) {
        m_text = std::move(other.m_text);
        other.m_text.clear();
    }
    return *this;
}
CString& CString::operator=(LPCTSTR text) {
    // `text` may be a part of this string; AfxText supports that.
    RequireLength(LengthOf(text));
    AfxWithMemory([&] { m_text.assign(OrEmpty(text)); });
    return *this;
}
CString& CString::operator=(const unsigned char* text) {
    return *this = reinterpret_cast<LPCSTR>(text);
}
CString& CString::operator=(const OtherChar* text) {
    m_text = Converted(text);
    return *this;
}
CString& CString::operator=(TCHAR ch) {
    m_text.assign(1, ch);
    return *this;
}

void CString::Join(LPCTSTR text, std::size_t length) {
    RequireLength(length);
    RequireLength(m_text.size() + length);
    AfxWithMemory([&] { m_text.append(text, length); });
}
CString& CString::operator+=(const CString& other) {
    Join(other.m_text.data(), other.m_text.size());
    return *this;
}
CString& CString::operator+=(LPCTSTR text) {
    Join(OrEmpty(text), LengthOf(text));
    return *this;
}
CString& CString::operator+=(TCHAR ch) {
    Join(&ch, 1);
    return *this;
}
void CString::Append(LPCTSTR text) {
    *this += text;
}
void CString::Append(LPCTSTR text, int length) {
    if (text != nullptr && length > 0)
        Join(text, static_cast<std::size_t>(length));
}

CString operator+(const CString& left, const CString& right) {
    CString result;
    result.m_text = Joined(left.m_text.data(), left.m_text.size(), right.m_text.data(), right.m_text.size());
    return result;
}
CString operator+(const CString& left, LPCTSTR right) {
    CString result;
    result.m_text = Joined(left.m_text.data(), left.m_text.size(), OrEmpty(right), LengthOf(right));
    return result;
}
CString operator+(LPCTSTR left, const CString& right) {
    CString result;
    result.m_text = Joined(OrEmpty(left), LengthOf(left), right.m_text.data(), right.m_text.size());
    return result;
}
CString operator+(const CString& left, TCHAR right) {
    CString result;
    result.m_text = Joined(left.m_text.data(), left.m_text.size(), &right, 1);
    return result;
}
CString operator+(TCHAR left, const CString& right) {
    CString result;
    result.m_text = Joined(&left, 1, right.m_text.data(), right.m_text.size());
    return result;
}

int CString::GetLength() const {
    return static_cast<int>(m_text.size());
}
BOOL CString::IsEmpty() const {
    return m_text.empty();
}
void CString::Empty() {
    AfxText().swap(m_text);
}
std::size_t CString::CheckedIndex(int index) const {
    ASSERT(index >= 0 && index < GetLength());
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    return static_cast<std::size_t>(index);
}
TCHAR CString::GetAt(int index) const {
    return m_text[CheckedIndex(index)];
}
TCHAR CString::operator[](int index) const {
    return m_text[CheckedIndex(index)];
}
void CString::SetAt(int index, TCHAR ch) {
    m_text[CheckedIndex(index)] = ch;
}
CString::operator LPCTSTR() const {
    return m_text.c_str();
}
LPCTSTR CString::GetString() const {
    return m_text.c_str();
}

bool operator==(const CString& left, const CString& right) {
    return left.m_text == right.m_text;
}
int CString::Compare(LPCTSTR other) const {
    return Sign(_tcscmp(m_text.c_str(), OrEmpty(other)));
}
int CString::CompareNoCase(LPCTSTR other) const {
    return AfxCompareFolded(m_text.c_str(), OrEmpty(other));
}
int CString::Collate(LPCTSTR other) const {
    return CompareString(LOCALE_USER_DEFAULT, 0, m_text.c_str(), -1, OrEmpty(other), -1) - CSTR_EQUAL;
}
int CString::CollateNoCase(LPCTSTR other) const {
    return CompareString(LOCALE_USER_DEFAULT, NORM_IGNORECASE, m_text.c_str(), -1, OrEmpty(other), -1) -
           CSTR_EQUAL;
}

LPTSTR CString::GetBuffer(int minLength) {
    const std::size_t length = static_cast<std::size_t>(std::max(minLength, 0));
    RequireLength(length);
    if (length > m_text.size())
        AfxWithMemory([&] { m_text.resize(length); });
    return m_text.data();
}
LPTSTR CString::GetBuffer() {
    return m_text.data();
}
LPTSTR CString::GetBufferSetLength(int length) {
    const std::size_t newLength = static_cast<std::size_t>(std::max(length, 0));
    RequireLength(newLength);
    AfxWithMemory([&] { m_text.resize(newLength); });
    return m_text.data();
}
void CString::ReleaseBuffer(int newLength) {
    const std::size_t room = m_text.size();
    std::size_t length = static_cast<std::size_t>(std::max(newLength, 0));
    if (newLength < 0) {
        const std::size_t end = m_text.find(TCHAR{0});
        length = end == AfxText::npos ? room : end;
    }
    ASSERT(length <= room);
    m_text.resize(std::min(length, room));
}
void CString::FreeExtra() {
    // shrink_to_fit is a request. If the smaller block cannot be allocated, the string keeps its block.
    m_text.shrink_to_fit();
}
LPTSTR CString::LockBuffer() {
    return m_text.data();
}
void CString::UnlockBuffer() {
}

std::string AfxBytes(const CString& text) {
#ifdef _UNICODE
    const int length = text.GetLength();
    const int room = WideCharToMultiByte(CP_ACP, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string bytes =
        AfxWithMemory([&] { return std::string(static_cast<std::size_t>(std::max(room, 0)), '\0'); });
    WideCharToMultiByte(CP_ACP, 0, text, length, bytes.data(), room, nullptr, nullptr);
    return bytes;
#else
    return AfxWithMemory(
        [&] { return std::string(text.GetString(), static_cast<std::size_t>(text.GetLength())); });
#endif
}

UINT AfxHashText(LPCSTR text) {
    UINT hash = 2166136261u;
    for (const char* at = text == nullptr ? "" : text; *at != 0; ++at)
        hash = (hash ^ static_cast<BYTE>(*at)) * 16777619u;
    return hash;
}
UINT AfxHashText(LPCWSTR text) {
    UINT hash = 2166136261u;
    for (const wchar_t* at = text == nullptr ? L"" : text; *at != 0; ++at)
        hash = (hash ^ *at) * 16777619u;
    return hash;
}
