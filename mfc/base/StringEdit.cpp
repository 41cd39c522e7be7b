// SPDX-License-Identifier: MIT
// CString: members that search, extract and change.

#include <afxtempl.h>

#include <algorithm>
#include <cstring>

#include "mfc/base/CaseFold.h"

namespace {

constexpr LPCTSTR whiteSpace = _T(" \t\n\v\f\r");

int AsPosition(std::size_t found) {
    return found == AfxText::npos ? -1 : static_cast<int>(found);
}

std::size_t NotNegative(int value) {
    return static_cast<std::size_t>(std::max(value, 0));
}

CString Part(const AfxText& text, std::size_t first, std::size_t count) {
    first = std::min(first, text.size());
    return CString(text.data() + first, static_cast<int>(std::min(count, text.size() - first)));
}

} // namespace

CString CString::Mid(int first) const {
    return Part(m_text, NotNegative(first), m_text.size());
}
CString CString::Mid(int first, int count) const {
    return Part(m_text, NotNegative(first), NotNegative(count));
}
CString CString::Left(int count) const {
    return Part(m_text, 0, NotNegative(count));
}
CString CString::Right(int count) const {
    const std::size_t length = std::min(NotNegative(count), m_text.size());
    return Part(m_text, m_text.size() - length, length);
}
CString CString::SpanIncluding(LPCTSTR set) const {
    return Part(m_text, 0, m_text.find_first_not_of(set == nullptr ? _T("") : set));
}
CString CString::SpanExcluding(LPCTSTR set) const {
    return Part(m_text, 0, m_text.find_first_of(set == nullptr ? _T("") : set));
}

CString& CString::MakeUpper() {
    AfxWithMemory([&] { m_text = AfxWithCase(m_text, true); });
    return *this;
}
CString& CString::MakeLower() {
    AfxWithMemory([&] { m_text = AfxWithCase(m_text, false); });
    return *this;
}
CString& CString::MakeReverse() {
    std::reverse(m_text.begin(), m_text.end());
    return *this;
}

CString& CString::TrimLeft(LPCTSTR targets) {
    if (targets != nullptr && *targets != 0)
        m_text.erase(0, m_text.find_first_not_of(targets));
    return *this;
}
CString& CString::TrimRight(LPCTSTR targets) {
    if (targets != nullptr && *targets != 0)
        m_text.erase(m_text.find_last_not_of(targets) + 1);
    return *this;
}
CString& CString::TrimLeft() {
    return TrimLeft(whiteSpace);
}
CString& CString::TrimRight() {
    return TrimRight(whiteSpace);
}
CString& CString::TrimLeft(TCHAR target) {
    m_text.erase(0, m_text.find_first_not_of(target));
    return *this;
}
CString& CString::TrimRight(TCHAR target) {
    m_text.erase(m_text.find_last_not_of(target) + 1);
    return *this;
}
CString& CString::Trim() {
    return TrimRight().TrimLeft();
}
CString& CString::Trim(TCHAR target) {
    return TrimRight(target).TrimLeft(target);
}
CString& CString::Trim(LPCTSTR targets) {
    return TrimRight(targets).TrimLeft(targets);
}

int CString::Find(TCHAR ch, int start) const {
    return start < 0 ? -1 : AsPosition(m_text.find(ch, NotNegative(start)));
}
int CString::Find(LPCTSTR sub, int start) const {
    return start < 0 || sub == nullptr ? -1 : AsPosition(m_text.find(sub, NotNegative(start)));
}
int CString::ReverseFind(TCHAR ch) const {
    return AsPosition(m_text.rfind(ch));
}
int CString::FindOneOf(LPCTSTR set) const {
    return set == nullptr ? -1 : AsPosition(m_text.find_first_of(set));
}

int CString::Replace(TCHAR oldChar, TCHAR newChar) {
    if (oldChar == newChar)
        return 0;
    const auto count = std::count(m_text.begin(), m_text.end(), oldChar);
    std::replace(m_text.begin(), m_text.end(), oldChar, newChar);
    return static_cast<int>(count);
}

int CString::Replace(LPCTSTR oldText, LPCTSTR newText) {
    if (oldText == nullptr || *oldText == 0)
        return 0;
    const std::size_t oldLength = _tcslen(oldText);
    const std::size_t newLength = newText == nullptr ? 0 : _tcslen(newText);
    int count = 0;
    CString result;
    std::size_t done = 0;
    for (std::size_t at; (at = m_text.find(oldText, done, oldLength)) != AfxText::npos; ++count) {
        result.Join(m_text.data() + done, at - done);
        if (newLength > 0)
            result.Join(newText, newLength);
        done = at + oldLength;
    }
    if (count > 0) {
        result.Join(m_text.data() + done, m_text.size() - done);
        m_text.swap(result.m_text);
    }
    return count;
}

int CString::Remove(TCHAR ch) {
    const std::size_t oldLength = m_text.size();
    m_text.erase(std::remove(m_text.begin(), m_text.end(), ch), m_text.end());
    return static_cast<int>(oldLength - m_text.size());
}

int CString::Insert(int index, TCHAR ch) {
    const TCHAR text[] = {ch, 0};
    return Insert(index, text);
}

int CString::Insert(int index, LPCTSTR text) {
    if (text != nullptr && *text != 0) {
        const std::size_t at = std::min(NotNegative(index), m_text.size());
        CString result = Left(static_cast<int>(at));
        result.Join(text, _tcslen(text));
        result.Join(m_text.data() + at, m_text.size() - at);
        m_text.swap(result.m_text);
    }
    return GetLength();
}

int CString::Delete(int index, int count) {
    const std::size_t at = NotNegative(index);
    if (at < m_text.size())
        m_text.erase(at, NotNegative(count));
    return GetLength();
}

CString CString::Tokenize(LPCTSTR separators, int& position) const {
    if (separators == nullptr || *separators == 0) {
        const CString rest = position >= 0 && position < GetLength() ? Mid(position) : CString();
        position = rest.IsEmpty() ? -1 : GetLength();
        return rest;
    }
    const std::size_t first =
        position < 0 ? AfxText::npos : m_text.find_first_not_of(separators, NotNegative(position));
    if (first == AfxText::npos) {
        position = -1;
        return CString();
    }
    const std::size_t end = std::min(m_text.find_first_of(separators, first), m_text.size());
    position = static_cast<int>(std::min(end + 1, m_text.size()));
    return Part(m_text, first, end - first);
}

BOOL AfxExtractSubString(CString& part, LPCTSTR full, int index, TCHAR separator) {
    // `full` may point into `part`, so `part` changes last.
    LPCTSTR begin = full;
    for (; begin != nullptr && index > 0; --index) {
        begin = _tcschr(begin, separator);
        if (begin != nullptr)
            ++begin;
    }
    if (begin == nullptr || index < 0) {
        part.Empty();
        return FALSE;
    }
    LPCTSTR const end = _tcschr(begin, separator);
    part = end == nullptr ? CString(begin) : CString(begin, static_cast<int>(end - begin));
    return TRUE;
}
