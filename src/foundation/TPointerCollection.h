#pragma once

#include "foundation/TPointerDeleter.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Tessitor::Collections {

/// Growable array of pointers; the deleter decides who owns what they point to. Removing leaves a
/// null slot and moves nothing, so a listener may remove itself while the listeners are being
/// called. Loop to getArraySize() and skip nulls.
template <typename TypeName>
class TPointerCollection : public Basics::CCountedObject {
public:
    TPointerCollection();  ///< owns its elements
    /// @param deleter  not owned; null to leave the elements alone.
    explicit TPointerCollection(TPointerDeleter<TypeName> *deleter);
    TPointerCollection(const TPointerCollection &) = delete;
    TPointerCollection &operator=(const TPointerCollection &) = delete;
    ~TPointerCollection() override;
    Basics::CClass &getClass() const override { return s_class; }

    void addElement(TypeName *element);         ///< into the slot at getInsertIndex()
    TypeName *elementAtIndex(int index) const;  ///< null outside 0 to getArraySize() - 1
    /// Empties the slot and releases its element. Ignores an index outside the slots.
    void deletePointerAtIndex(int index);
    int getIndexOfPointer(const TypeName *pointer) const;  ///< by address; -1 if absent
    bool isPointerInArray(const TypeName *pointer) const { return getIndexOfPointer(pointer) >= 0; }

    int getArraySize() const { return m_arraySize; }      ///< slots allocated
    int getInsertIndex() const { return m_insertIndex; }  ///< slots filled since the last clear

    /// @param slots  added when the array is full; below 1 counts as 1.
    void setGrowSize(int slots) { m_growSize = slots; }
    void setPointerDeleter(TPointerDeleter<TypeName> *deleter) { m_deleter = deleter; }

    /// Moves the elements to the front, in order.
    /// @param shrink  also frees the empty slots.
    void compactArray(bool shrink);
    /// Sorts all slots, including those that hold null.
    /// @param before  bool(const TypeName *, const TypeName *): a strict weak order.
    template <typename Before>
    void sortSlots(Before before);
    void clearArray();            ///< releases every element, in order, and frees the slots
    void clearAndReinitialise();  ///< clears, then grows once

private:
    void resize(int slots);
    void grow();
    bool isSlot(int index) const { return index >= 0 && index < m_arraySize; }

    static Basics::TClassRecord<TPointerCollection> s_class;

    std::unique_ptr<TypeName *[]> m_array;
    TPointerDeleter<TypeName> *m_deleter;  // not owned, may be null
    int m_arraySize = 0;
    int m_growSize = 32;
    int m_insertIndex = 0;
};

// Definitions
template <typename TypeName>
Basics::TClassRecord<TPointerCollection<TypeName>>
    TPointerCollection<TypeName>::s_class("TPointerCollection<TypeName>", typeid(TypeName),
                                          "CCountedObject");

template <typename TypeName>
TPointerCollection<TypeName>::TPointerCollection()
    : TPointerCollection(TObjectDeleter<TypeName>::getStaticDeleter()) {}

template <typename TypeName>
TPointerCollection<TypeName>::TPointerCollection(TPointerDeleter<TypeName> *deleter)
    : m_deleter(deleter) {
    s_class.incrementInstanceCount();
}

template <typename TypeName>
TPointerCollection<TypeName>::~TPointerCollection() {
    clearArray();
    s_class.decrementInstanceCount();
}

template <typename TypeName>
void TPointerCollection<TypeName>::addElement(TypeName *element) {
    if (m_insertIndex >= m_arraySize)
        grow();
    m_array[m_insertIndex] = element;
    ++m_insertIndex;
    if (m_deleter != nullptr)
        m_deleter->pointerAdded(element);
}

template <typename TypeName>
TypeName *TPointerCollection<TypeName>::elementAtIndex(int index) const {
    return isSlot(index) ? m_array[index] : nullptr;
}

template <typename TypeName>
void TPointerCollection<TypeName>::deletePointerAtIndex(int index) {
    if (!isSlot(index))
        return;
    // The slot is emptied first: releasing an element may run code that uses the collection.
    TypeName *element = std::exchange(m_array[index], nullptr);
    if (m_deleter != nullptr && element != nullptr)
        m_deleter->deletePointer(element);
}

template <typename TypeName>
int TPointerCollection<TypeName>::getIndexOfPointer(const TypeName *pointer) const {
    for (int i = 0; i < m_arraySize; ++i)
        if (m_array[i] == pointer)
            return i;
    return -1;
}

template <typename TypeName>
void TPointerCollection<TypeName>::compactArray(bool shrink) {
    TypeName **const begin = m_array.get();
    TypeName **const end = begin + m_arraySize;
    TypeName **const filled = std::remove(begin, end, nullptr);
    std::fill(filled, end, nullptr);
    m_insertIndex = static_cast<int>(filled - begin);
    if (shrink && m_insertIndex < m_arraySize)
        resize(m_insertIndex);
}

template <typename TypeName>
template <typename Before>
void TPointerCollection<TypeName>::sortSlots(Before before) {
    std::sort(m_array.get(), m_array.get() + m_arraySize, before);
}

template <typename TypeName>
void TPointerCollection<TypeName>::clearArray() {
    for (int i = 0; i < m_arraySize; ++i)
        deletePointerAtIndex(i);
    m_array.reset();
    m_arraySize = 0;
    m_insertIndex = 0;
}

template <typename TypeName>
void TPointerCollection<TypeName>::clearAndReinitialise() {
    clearArray();
    grow();
}

template <typename TypeName>
void TPointerCollection<TypeName>::grow() {
    resize(m_arraySize + std::max(m_growSize, 1));
}

// Without slots the array is null.
template <typename TypeName>
void TPointerCollection<TypeName>::resize(int slots) {
    std::unique_ptr<TypeName *[]> array;
    if (slots > 0) {
        array = std::make_unique<TypeName *[]>(static_cast<std::size_t>(slots));
        std::copy_n(m_array.get(), std::min(slots, m_arraySize), array.get());
    }
    m_array = std::move(array);
    m_arraySize = slots;
}

}  // namespace Tessitor::Collections
