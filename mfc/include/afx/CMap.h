// SPDX-License-Identifier: MIT
// CMap, a hash table of keys and values.
#pragma once

#include <afx/Templates.h>

/// A hash table of unique keys, each with a value. HashKey<ARG_KEY> and CompareElements find a key. The
/// order of enumeration is arbitrary. If memory runs out, members throw CMemoryException*. Serialize() may
/// then have loaded some elements; the other members leave the map unchanged.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject {
public:
    /// A key with its value. PLookup(), PGetFirstAssoc() and PGetNextAssoc() return pointers to pairs inside
    /// the map.
    struct CPair {
        const KEY key;
        VALUE value;

    protected:
        explicit CPair(ARG_KEY newKey) : key(newKey), value() {}
    };

    /// `blockSize` exists for compatibility; the map ignores it.
    explicit CMap(INT_PTR blockSize = 10) { static_cast<void>(blockSize); }
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    /// Copies the value of `key`. If the map does not contain the key, returns FALSE and leaves
    /// `value` unchanged.
    BOOL Lookup(ARG_KEY key, VALUE& value) const {
        const Node* const node = FindNode(key);
        if (node == nullptr)
            return FALSE;
        value = node->value;
        return TRUE;
    }
    const CPair* PLookup(ARG_KEY key) const { return FindNode(key); }
    CPair* PLookup(ARG_KEY key) { return FindNode(key); }

    /// The value of `key`. If the map does not contain the key, adds it with a default value.
    VALUE& operator[](ARG_KEY key) {
        Node* node = FindNode(key);
        if (node == nullptr)
            node = Insert(key);
        return node->value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) {
        const INT_PTR oldCount = m_nCount;
        VALUE& value = (*this)[key];
        try {
            value = newValue;
        } catch (...) {
            if (m_nCount > oldCount)
                RemoveKey(key);
            throw;
        }
    }
    /// FALSE if the map does not contain the key.
    BOOL RemoveKey(ARG_KEY key) {
        if (!m_buckets)
            return FALSE;
        const UINT hash = HashKey<ARG_KEY>(key);
        for (Node** link = &m_buckets[hash % m_nBuckets]; *link != nullptr; link = &(*link)->next) {
            Node* const node = *link;
            if (node->hash == hash && CompareElements(&node->key, &key)) {
                *link = node->next;
                delete node;
                --m_nCount;
                return TRUE;
            }
        }
        return FALSE;
    }
    /// Removes all keys; the size of the hash table stays.
    void RemoveAll() {
        for (UINT i = 0; m_buckets && i < m_nBuckets; ++i)
            while (Node* const node = m_buckets[i]) {
                m_buckets[i] = node->next;
                delete node;
            }
        m_buckets.reset();
        m_nCount = 0;
    }

    /// The position before the first element; null if the map is empty.
    POSITION GetStartPosition() const { return m_nCount == 0 ? nullptr : BEFORE_START_POSITION; }
    /// Copies the element at `position` and sets `position` to the next element, or to null after the last
    /// one. The program may remove the copied element and go on with the enumeration.
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const {
        const Node* const node = NodeAt(position);
        position = reinterpret_cast<POSITION>(NextNode(node));
        key = node->key;
        value = node->value;
    }
    /// The first element, or the element after `pair`; null if there is none.
    const CPair* PGetFirstAssoc() const { return FirstNode(0); }
    CPair* PGetFirstAssoc() { return FirstNode(0); }
    const CPair* PGetNextAssoc(const CPair* pair) const { return NextNode(CheckedNode(pair)); }
    CPair* PGetNextAssoc(const CPair* pair) { return NextNode(CheckedNode(pair)); }

    UINT GetHashTableSize() const { return m_nBuckets; }
    /// Sets the size of the hash table, 1 or more; the map must be empty. Good sizes are prime numbers about
    /// a fifth larger than the expected number of elements. `allocateNow` TRUE allocates the table at once,
    /// FALSE with the first element.
    void InitHashTable(UINT hashSize, BOOL allocateNow = TRUE) {
        Require(m_nCount == 0 && hashSize > 0);
        m_buckets.reset();
        m_nBuckets = hashSize;
        if (allocateNow)
            MakeTable();
    }

    /// Stores or loads the number of elements, then key and value of each element (SerializeElements).
    /// Loading adds to the map.
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(m_nCount));
            for (Node* node = FirstNode(0); node != nullptr; node = NextNode(node)) {
                SerializeElements<KEY>(ar, const_cast<KEY*>(&node->key), 1);
                SerializeElements<VALUE>(ar, &node->value, 1);
            }
        } else {
            for (DWORD_PTR count = ar.ReadCount(); count > 0; --count) {
                KEY key{};
                VALUE value{};
                SerializeElements<KEY>(ar, &key, 1);
                SerializeElements<VALUE>(ar, &value, 1);
                SetAt(key, value);
            }
        }
    }
    void AssertValid() const override {
        CObject::AssertValid();
        ASSERT(m_nBuckets > 0 && (m_nCount == 0 || m_buckets != nullptr));
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_nCount) << " elements\n";
    }

private:
    struct Node : CPair {
        Node(ARG_KEY newKey, UINT newHash) : CPair(newKey), hash(newHash) {}
        UINT hash;
        Node* next = nullptr;
    };

    static void Require(bool condition) {
        ASSERT(condition);
        if (!condition)
            AfxThrowInvalidArgException();
    }
    static const Node* CheckedNode(const CPair* pair) {
        Require(pair != nullptr);
        return static_cast<const Node*>(pair);
    }

    void MakeTable() {
        m_buckets = AfxWithMemory([this] { return std::make_unique<Node*[]>(m_nBuckets); });
    }
    Node* FindNode(ARG_KEY key) const {
        if (!m_buckets)
            return nullptr;
        const UINT hash = HashKey<ARG_KEY>(key);
        Node* node = m_buckets[hash % m_nBuckets];
        while (node != nullptr && !(node->hash == hash && CompareElements(&node->key, &key)))
            node = node->next;
        return node;
    }
    Node* Insert(ARG_KEY key) {
        if (!m_buckets)
            MakeTable();
        const UINT hash = HashKey<ARG_KEY>(key);
        Node* const node = AfxWithMemory([&] { return new Node(key, hash); });
        Node*& bucket = m_buckets[hash % m_nBuckets];
        node->next = bucket;
        bucket = node;
        ++m_nCount;
        return node;
    }
    Node* FirstNode(UINT bucket) const {
        if (m_buckets)
            for (; bucket < m_nBuckets; ++bucket)
                if (m_buckets[bucket] != nullptr)
                    return m_buckets[bucket];
        return nullptr;
    }
    Node* NextNode(const Node* node) const {
        return node->next != nullptr ? node->next : FirstNode(node->hash % m_nBuckets + 1);
    }
    const Node* NodeAt(POSITION position) const {
        const Node* const node =
            position == BEFORE_START_POSITION ? FirstNode(0) : reinterpret_cast<const Node*>(position);
        Require(node != nullptr);
        return node;
    }

    std::unique_ptr<Node*[]> m_buckets;
    UINT m_nBuckets = 17;
    INT_PTR m_nCount = 0;
};
