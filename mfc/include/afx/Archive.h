// SPDX-License-Identifier: MIT
// CArchive: objects and values stored in a file or loaded from a file.
#pragma once

#include <memory>
#include <type_traits>

#include <afx/Exception.h>
#include <afx/File.h>

class CDocument;

/// Stores objects and values in a file, or loads them, through a buffer. Values are stored as their bytes,
/// the least significant byte first. Members throw CArchiveException*: writeOnly and readOnly for the wrong
/// direction, endOfFile when the file ends too early, genericException after Close() or Abort() and for a
/// text in UTF-16, other causes for other content that does not fit the program. Exceptions of the file pass
/// through.
///
/// The first pointer to an object stores the object and its class: name and schema with the first object of
/// the class, later a number. Further pointers to the object store a reference: the number of the object in
/// the archive. Loading creates one object and sets all pointers to it.
class MFC_API CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// `file` must stay open until the archive is closed, and its open mode must allow the direction. The
    /// archive uses the first `bufferSize` bytes of `buffer`; the caller owns the buffer. If `buffer` is null
    /// or `bufferSize` is 0, the archive allocates a buffer of `bufferSize` bytes, but at least 128 bytes.
    CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
    /// Closes the archive, unless the mode contains bNoFlushOnDelete. The destructor ignores errors; call
    /// Close() to get them.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return !IsLoading(); }
    /// FALSE: the byte order in files is the byte order of the machine.
    BOOL IsByteSwapping() const { return FALSE; }
    /// TRUE if the buffer is empty: the next load reads from the file.
    BOOL IsBufferEmpty() const { return m_nPosition == m_nFilled; }
    /// Null after Close or Abort.
    CFile* GetFile() const { return m_pFile; }

    /// Storing: writes the buffer to the file. Loading: sets the file's position to the first byte that is
    /// not loaded yet.
    void Flush();
    /// Flushes the buffer and ends the archive. The file stays open.
    void Close();
    /// Ends the archive without writing and without throwing.
    void Abort();

    /// Loads up to `count` bytes, fewer only at the end of the file. Returns the number of bytes.
    UINT Read(void* buffer, UINT count);
    void Write(const void* buffer, UINT count);

    /// Writes the characters without their terminating zero.
    void WriteString(LPCTSTR text);
    /// Loads a line without its line end. The first form loads at most `maxCount` characters and appends a
    /// zero, so `text` needs `maxCount` + 1 characters. A line of exactly `maxCount` characters is loaded with its
    /// line end. At the end of the file, the first form returns null
    /// and the second form returns FALSE.
    LPTSTR ReadString(LPTSTR text, UINT maxCount);
    BOOL ReadString(CString& text);

    /// Store or load an element count. A count below 0xFFFF takes 2 bytes, a count below 0xFFFFFFFF takes
    /// 6 bytes, a larger count takes 14 bytes.
    void WriteCount(DWORD_PTR count);
    DWORD_PTR ReadCount();

    /// Stores an object, or a reference if the archive has stored the object before. `object` may be null.
    /// Throws CNotSupportedException* if the object's class is not serialisable.
    void WriteObject(const CObject* object);
    /// Returns a new object that the caller owns, an object that was loaded before, or null. Throws badClass
    /// if the program does not know the object's class, or if the object is not of `runtimeClass` or a class
    /// derived from it (null allows any class). Throws badSchema if the schema in the archive differs from
    /// the schema of a class without VERSIONABLE_SCHEMA.
    CObject* ReadObject(const CRuntimeClass* runtimeClass);
    /// Gives a number to an object that WriteObject() did not store, so that references to the object can be
    /// stored. Loading must call MapObject() for its own object at the same place in the archive.
    void MapObject(const CObject* object);
    void WriteClass(const CRuntimeClass* runtimeClass);
    /// Loads a class. `*schema` receives the stored schema; without `schema`, GetObjectSchema() returns it.
    /// If a reference to an object follows instead of a class, `*objectTag` receives the number of the object
    /// (0 for a null pointer) and the result is null. Without `objectTag`, a reference throws badIndex.
    CRuntimeClass* ReadClass(const CRuntimeClass* requested = nullptr, UINT* schema = nullptr,
                             DWORD* objectTag = nullptr);
    void SerializeClass(const CRuntimeClass* runtimeClass);

    /// Schema of the object that is being loaded. Only the first call inside the object's Serialize() returns
    /// the schema; later calls return (UINT)-1.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT schema);

    /// Set the initial capacity of the table of objects, in entries: `growBy` for loading, `hashSize` for
    /// storing. The archive ignores `blockSize`. Only a call before the first object has an effect.
    void SetLoadParams(UINT growBy = 1024);
    void SetStoreParams(UINT hashSize = 2053, UINT blockSize = 128);

    /// A template, so that a pointer cannot convert to bool here.
    template <class T> std::enable_if_t<std::is_same_v<T, bool>, CArchive&> operator<<(T value) {
        return Put(static_cast<BYTE>(value));
    }
    CArchive& operator<<(char value) { return Put(value); }
    CArchive& operator<<(BYTE value) { return Put(value); }
    CArchive& operator<<(short value) { return Put(value); }
    CArchive& operator<<(WORD value) { return Put(value); }
    CArchive& operator<<(wchar_t value) { return Put(value); }
    CArchive& operator<<(int value) { return Put(value); }
    CArchive& operator<<(unsigned value) { return Put(value); }
    CArchive& operator<<(LONG value) { return Put(value); }
    CArchive& operator<<(DWORD value) { return Put(value); }
    CArchive& operator<<(LONGLONG value) { return Put(value); }
    CArchive& operator<<(ULONGLONG value) { return Put(value); }
    CArchive& operator<<(float value) { return Put(value); }
    CArchive& operator<<(double value) { return Put(value); }

    CArchive& operator>>(bool& value) {
        value = Get<BYTE>() != 0;
        return *this;
    }
    CArchive& operator>>(char& value) { return GetInto(value); }
    CArchive& operator>>(BYTE& value) { return GetInto(value); }
    CArchive& operator>>(short& value) { return GetInto(value); }
    CArchive& operator>>(WORD& value) { return GetInto(value); }
    CArchive& operator>>(wchar_t& value) { return GetInto(value); }
    CArchive& operator>>(int& value) { return GetInto(value); }
    CArchive& operator>>(unsigned& value) { return GetInto(value); }
    CArchive& operator>>(LONG& value) { return GetInto(value); }
    CArchive& operator>>(DWORD& value) { return GetInto(value); }
    CArchive& operator>>(LONGLONG& value) { return GetInto(value); }
    CArchive& operator>>(ULONGLONG& value) { return GetInto(value); }
    CArchive& operator>>(float& value) { return GetInto(value); }
    CArchive& operator>>(double& value) { return GetInto(value); }

    /// For the program's use. The archive does not read or write the member.
    CDocument* m_pDocument = nullptr;

private:
    struct Tables;

    template <class T> CArchive& Put(T value) {
        Write(&value, sizeof value);
        return *this;
    }
    template <class T> T Get() {
        T value;
        ReadAll(&value, sizeof value);
        return value;
    }
    template <class T> CArchive& GetInto(T& value) {
        value = Get<T>();
        return *this;
    }
    void ReadAll(void* buffer, UINT count);
    void RequireMode(Mode mode) const;
    void FillBuffer();
    /// Skips a line end at the present position. Returns its length in characters, 0 if there is none.
    UINT SkipLineEnd();
    void WriteTag(DWORD index, bool isClass);
    DWORD NextIndex() const;
    CRuntimeClass* ReadNewClass(UINT& schema);
    CString FileName() const;

    CFile* m_pFile;
    UINT m_nMode;
    std::unique_ptr<BYTE[]> m_pOwnBuffer;
    BYTE* m_pBuffer;
    UINT m_nBufferSize;
    UINT m_nPosition = 0;
    UINT m_nFilled = 0;
    UINT m_nObjectSchema = static_cast<UINT>(-1);
    std::unique_ptr<Tables> m_pTables;
};

inline CArchive& operator<<(CArchive& ar, const CObject* object) {
    ar.WriteObject(object);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, CObject*& object) {
    object = ar.ReadObject(nullptr);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, const CObject*& object) {
    object = ar.ReadObject(nullptr);
    return ar;
}

/// Store or load each member of the structure in 4 bytes.
MFC_API CArchive& operator<<(CArchive& ar, SIZE size);
MFC_API CArchive& operator<<(CArchive& ar, POINT point);
MFC_API CArchive& operator<<(CArchive& ar, const RECT& rect);
MFC_API CArchive& operator>>(CArchive& ar, SIZE& size);
MFC_API CArchive& operator>>(CArchive& ar, POINT& point);
MFC_API CArchive& operator>>(CArchive& ar, RECT& rect);
