// SPDX-License-Identifier: MIT
// Writes a small machine-code function for each import, which either fails or calls the original.
#include "tests/support/FailingCalls.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace testkit {
namespace {

constexpr std::size_t kCodeBytes = 1 << 18;

const char* const kLeftAlone[] = {
    // Functions that release something.
    "CloseClipboard", "CloseEnhMetaFile", "CloseMetaFile", "DeleteDC", "DeleteEnhMetaFile", "DeleteMetaFile",
    "DeleteObject", "DestroyMenu", "DestroyWindow", "EndPaint", "GdipDisposeImage", "GdipFree",
    "GdiplusShutdown", "ReleaseCapture", "ReleaseDC", "UnhookWindowsHookEx",
    // Functions that deliver messages, those of the test included. The A or W at the end is left out.
    "CallNextHookEx", "CallWindowProc", "DefWindowProc", "DispatchMessage", "GetMessage", "PeekMessage",
    "PostMessage", "SendMessage", "UpdateWindow",
    // Returns a pointer, not a status.
    "GdipAlloc"};

// Variables that the generated code reads and writes.
int callsLeft = 0;
int callsFailed = 0;
int lastFailed = 0;

class Writer {
public:
    explicit Writer(unsigned char* at) : m_at(at) {}
    Writer& Bytes(std::initializer_list<int> bytes) {
        for (const int byte : bytes)
            *m_at++ = static_cast<unsigned char>(byte);
        return *this;
    }
    /// mov r11, value
    Writer& R11(const void* value) { return Bytes({0x49, 0xBB}).Raw(reinterpret_cast<std::uint64_t>(value)); }
    template <class Value> Writer& Raw(Value value) {
        std::memcpy(m_at, &value, sizeof value);
        m_at += sizeof value;
        return *this;
    }
    unsigned char* End() const { return m_at; }

private:
    unsigned char* m_at;
};

} // namespace

FailingCalls::FailingCalls()
    : m_code(static_cast<unsigned char*>(
          ::VirtualAlloc(nullptr, kCodeBytes, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE))),
      m_codeEnd(m_code) {
    callsLeft = callsFailed = 0;
    for (const char* module : {"Kavlix.dll", "KavlixMfc.dll"})
        for (const auto& [library, failure] : {std::pair<const char*, int>{"GDI32.dll", 0},
                                               {"USER32.dll", 0},
                                               {"gdiplus.dll", 1},
                                               {"ole32.dll", static_cast<int>(E_FAIL)}})
            Replace(module, library, failure);
}

FailingCalls::~FailingCalls() {
    m_hooks.clear();
    ::VirtualFree(m_code, 0, MEM_RELEASE);
}

void FailingCalls::Replace(const char* module, const char* library, int failure) {
    for (const std::string& name : ImportedNames(module, library)) {
        const std::string plain = name.substr(0, name.find_last_not_of("AW") + 1);
        if (std::find(std::begin(kLeftAlone), std::end(kLeftAlone), plain) != std::end(kLeftAlone))
            continue;
        unsigned char* const code = m_codeEnd;
        m_hooks.emplace_back(module, name, code);
        m_functions.push_back(std::make_unique<Function>());
        m_functions.back()->name = std::string(module) + " " + name;
        // The generated code changes only r11 and eax, so the arguments reach the original function
        // unchanged.
        Writer writer(code);
        writer.R11(&callsLeft).Bytes({0x41, 0xFF, 0x0B});                        // dec dword [r11]
        writer.Bytes({0x74, 29});                                                // jz fail
        writer.R11(&m_functions.back()->always).Bytes({0x41, 0x83, 0x3B, 0x00}); // cmp dword [r11], 0
        writer.Bytes({0x75, 13});                                                // jne fail
        writer.R11(m_hooks.back().Original()).Bytes({0x41, 0xFF, 0xE3});         // jmp r11
        writer.R11(&callsFailed).Bytes({0x41, 0xFF, 0x03});                      // fail: inc dword [r11]
        writer.R11(&lastFailed).Bytes({0x41, 0xC7, 0x03}).Raw(Count() - 1);      // mov dword [r11], index
        m_codeEnd = writer.Bytes({0xB8}).Raw(failure).Bytes({0xC3}).End();       // mov eax, failure; ret
    }
}

void FailingCalls::FailAt(int n) {
    callsLeft = n;
}

void FailingCalls::FailAlways(int index) {
    for (int i = 0; i < Count(); ++i)
        m_functions[static_cast<std::size_t>(i)]->always = i == index;
}

int FailingCalls::Failed() const {
    return callsFailed;
}

int FailingCalls::LastFailed() const {
    return lastFailed;
}

} // namespace testkit
