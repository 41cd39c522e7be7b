#pragma once

#include <memory>
#include <type_traits>

#include <afx/Exception.h>
#include <afx/File.h>

class CDocument;

/// Stores objects in a file, or loads them from there, through a buffer. Values are stored as their bytes,
/// least significant first. Members throw CArchiveException* (writeOnly and readOnly for the wrong direction,
/// endOfFile when the file ends too early, and others for what cannot be read), and what the file throws
/// passes through.
///
/// An object is stored once, with the name and schema of its class; further pointers to it are stored as
/// references, and loading restores them as pointers to one object.
class MFC_API CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// `file` must stay open while the archive exists, and must allow the direction. Of `buffer`, which the
    /// caller keeps, the first `bufferSize` bytes are used; without one the archive makes its own, of at
    /// least 128 bytes.
    CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
    /// Closes the archive, unless bNoFlushOnDelete says not to. Errors are lost here: call Close() to see
    /// them.
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return !IsLoading(); }
    /// FALSE: the byte order of files is the machine's.
    BOOL IsByteSwapping() const { return FALSE; }
    /// TRUE if nothing is buffered: the next load reads from the file.
    BOOL IsBufferEmpty() const { return m_nPosition == m_nFilled; }
    /// Null after Close or Abort.
    CFile* GetFile() const { return m_pFile; }

    /// Storing: writes the buffer to the file. Loading: sets the file's position to the first byte not yet
    /// loaded.
    void Flush();
    /// Flushes and ends the archive; the file stays open.
    void Close();
    /// Ends the archive without writing and without throwing.
    void Abort();

    /// Loads up to `count` bytes; fewer only at the end of the file. Returns how many.
    UINT Read(void* buffer, UINT count);
    void Write(const void* buffer, UINT count);

    /// Writes the characters without their terminating zero.
    void WriteString(LPCTSTR text);
    /// A line without its line end. The first form cuts at `maxCount` characters, appends a zero behind them
    /// and returns null at the end of the file; the second returns FALSE there.
    LPTSTR ReadString(LPTSTR text, UINT maxCount);
    BOOL ReadString(CString& text);

    /// An element count: 2 bytes below 0xFFFF, else 6, or 14.
    void WriteCount(DWORD_PTR count);
    DWORD_PTR ReadCount();

    /// Null is stored as null. The object's class must be serialisable (else CNotSupportedException*).
    void WriteObject(const CObject* object);
    /// A new object owned by the caller, or one that was already loaded, or null. Throws badClass if it is
    /// not of the given class (null: of any) or one derived from it, badSchema if its schema does not fit.
    CObject* ReadObject(const CRuntimeClass* runtimeClass);
    /// Enters an object that was not stored through WriteObject, so that pointers to it can be stored; the
    /// loading side must enter its own at the same place.
    void MapObject(const CObject* object);
    void WriteClass(const CRuntimeClass* runtimeClass);
    /// The class stored next. `*schema` is its stored schema; `*objectTag` the reference, if an old object
    /// follows instead of a class: then the result is null. Without `objectTag` such a reference throws
    /// badIndex.
    CRuntimeClass* ReadClass(const CRuntimeClass* requested = nullptr, UINT* schema = nullptr,
                             DWORD* objectTag = nullptr);
    void SerializeClass(const CRuntimeClass* runtimeClass);

    /// Schema of the object being loaded; the first call in its Serialize tells it, later ones give (UINT)-1.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT schema);

    /// Only of meaning before the first object: how large the table of objects starts (and, storing, its hash
    /// table).
    void SetLoadParams(UINT growBy = 1024);
    void SetStoreParams(UINT hashSize = 2053, UINT blockSize = 128);

    /// A template, so that no pointer turns into a bool on its way here.
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

    /// For the program's use; the archive does not touch it.
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

/// Coordinates as 4 bytes each.
MFC_API CArchive& operator<<(CArchive& ar, SIZE size);
MFC_API CArchive& operator<<(CArchive& ar, POINT point);
MFC_API CArchive& operator<<(CArchive& ar, const RECT& rect);
MFC_API CArchive& operator>>(CArchive& ar, SIZE& size);
MFC_API CArchive& operator>>(CArchive& ar, POINT& point);
MFC_API CArchive& operator>>(CArchive& ar, RECT& rect);
