// SPDX-License-Identifier: MIT
// CList, a doubly linked list.
#pragma once

#include <afx/Templates.h>

/// A doubly linked list. A POSITION stays valid until its element is removed. A null POSITION where an
/// element is needed, and GetHead() or GetTail() of an empty list, assert in debug builds and throw
/// CInvalidArgException* in other builds. If memory runs out, members throw CMemoryException*. Members that
/// add several elements may then have added some; the other members leave the list unchanged.
template <class TYPE, class ARG_TYPE = const TYPE&> class CList : public CObject {
public:
    /// `blockSize` exists for compatibility; the list ignores it.
    explicit CList(INT_PTR blockSize = 10) { static_cast<void>(blockSize); }
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return GetAt(GetHeadPosition()); }
    const TYPE& GetHead() const { return GetAt(GetHeadPosition()); }
    TYPE& GetTail() { return GetAt(GetTailPosition()); }
    const TYPE& GetTail() const { return GetAt(GetTailPosition()); }

    /// Remove an element and return its value.
    TYPE RemoveHead() { return Take(m_pHead); }
    TYPE RemoveTail() { return Take(m_pTail); }

    POSITION AddHead(ARG_TYPE newElement) { return Link(nullptr, newElement, m_pHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(m_pTail, newElement, nullptr); }
    /// Add copies of another list's elements, in their order.
    void AddHead(CList* newList) {
        Require(newList != nullptr && newList != this);
        Node* const first = m_pHead;
        for (Node* node = newList->m_pHead; node != nullptr; node = node->next)
            Link(first == nullptr ? m_pTail : first->previous, node->element, first);
    }
    void AddTail(CList* newList) {
        Require(newList != nullptr && newList != this);
        for (Node* node = newList->m_pHead; node != nullptr; node = node->next)
            AddTail(node->element);
    }
    void RemoveAll() {
        while (m_pHead != nullptr)
            Unlink(m_pHead);
    }

    /// Null if the list is empty.
    POSITION GetHeadPosition() const { return Position(m_pHead); }
    POSITION GetTailPosition() const { return Position(m_pTail); }

    /// Return the element at `position`. GetNext() then sets `position` to the next element, GetPrev() to the
    /// previous element; `position` becomes null if there is no further element.
    TYPE& GetNext(POSITION& position) {
        Node* const node = At(position);
        position = Position(node->next);
        return node->element;
    }
    const TYPE& GetNext(POSITION& position) const {
        const Node* const node = At(position);
        position = Position(node->next);
        return node->element;
    }
    TYPE& GetPrev(POSITION& position) {
        Node* const node = At(position);
        position = Position(node->previous);
        return node->element;
    }
    const TYPE& GetPrev(POSITION& position) const {
        const Node* const node = At(position);
        position = Position(node->previous);
        return node->element;
    }

    TYPE& GetAt(POSITION position) { return At(position)->element; }
    const TYPE& GetAt(POSITION position) const { return At(position)->element; }
    void SetAt(POSITION position, ARG_TYPE newElement) { At(position)->element = newElement; }
    void RemoveAt(POSITION position) { Unlink(At(position)); }

    /// Insert an element before or after the element at `position`. With a null `position`, InsertBefore adds
    /// at the head and InsertAfter at the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement) {
        if (position == nullptr)
            return AddHead(newElement);
        Node* const node = At(position);
        return Link(node->previous, newElement, node);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement) {
        if (position == nullptr)
            return AddTail(newElement);
        Node* const node = At(position);
        return Link(node, newElement, node->next);
    }

    /// The first element after `startAfter` that CompareElements finds equal, or null. A null `startAfter`
    /// searches the whole list.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const {
        for (Node* node = startAfter == nullptr ? m_pHead : At(startAfter)->next; node != nullptr;
             node = node->next)
            if (CompareElements(&node->element, &searchValue))
                return Position(node);
        return nullptr;
    }
    /// The position of element number `index`, counted from 0; null if the list has no such element.
    POSITION FindIndex(INT_PTR index) const {
        if (index < 0 || index >= m_nCount)
            return nullptr;
        Node* node = m_pHead;
        while (index-- > 0)
            node = node->next;
        return Position(node);
    }

    /// Stores or loads the number of elements and then each element (SerializeElements). Loading appends at
    /// the tail.
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(m_nCount));
            for (Node* node = m_pHead; node != nullptr; node = node->next)
                SerializeElements<TYPE>(ar, &node->element, 1);
        } else {
            for (DWORD_PTR count = ar.ReadCount(); count > 0; --count) {
                std::unique_ptr<Node> node = NewNode();
                SerializeElements<TYPE>(ar, &node->element, 1);
                Insert(m_pTail, node.release(), nullptr);
            }
        }
    }
    void AssertValid() const override {
        CObject::AssertValid();
        ASSERT((m_nCount == 0) == (m_pHead == nullptr) && (m_nCount == 0) == (m_pTail == nullptr));
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_nCount) << " elements";
        if (dc.GetDepth() > 0)
            for (const Node* node = m_pHead; node != nullptr; node = node->next)
                DumpElements<TYPE>(dc, &node->element, 1);
        dc << "\n";
    }

private:
    struct Node {
        Node() { ConstructElements<TYPE>(&element, 1); }
        ~Node() { DestructElements<TYPE>(&element, 1); }
        Node(const Node&) = delete;
        Node& operator=(const Node&) = delete;

        Node* next = nullptr;
        Node* previous = nullptr;
        // A union, so that only ConstructElements and DestructElements construct and destroy the element.
        union {
            TYPE element;
        };
    };

    static void Require(bool condition) {
        ASSERT(condition);
        if (!condition)
            AfxThrowInvalidArgException();
    }
    static POSITION Position(Node* node) { return reinterpret_cast<POSITION>(node); }
    static Node* At(POSITION position) {
        Require(position != nullptr);
        return reinterpret_cast<Node*>(position);
    }
    static std::unique_ptr<Node> NewNode() {
        return AfxWithMemory([] { return std::make_unique<Node>(); });
    }

    POSITION Link(Node* previous, ARG_TYPE newElement, Node* next) {
        std::unique_ptr<Node> node = NewNode();
        node->element = newElement;
        Insert(previous, node.get(), next);
        return Position(node.release());
    }
    void Insert(Node* previous, Node* node, Node* next) {
        node->previous = previous;
        node->next = next;
        (previous == nullptr ? m_pHead : previous->next) = node;
        (next == nullptr ? m_pTail : next->previous) = node;
        ++m_nCount;
    }
    void Unlink(Node* node) {
        (node->previous == nullptr ? m_pHead : node->previous->next) = node->next;
        (node->next == nullptr ? m_pTail : node->next->previous) = node->previous;
        --m_nCount;
        delete node;
    }
    TYPE Take(Node* node) {
        Require(node != nullptr);
        TYPE element(std::move_if_noexcept(node->element));
        Unlink(node);
        return element;
    }

    Node* m_pHead = nullptr;
    Node* m_pTail = nullptr;
    INT_PTR m_nCount = 0;
};
