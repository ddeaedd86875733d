#pragma once
// Intrusive pointer on the reference count of a CXmlObjectBase.

template <class T>
class CSmartPtr
{
public:
    CSmartPtr() = default;
    CSmartPtr(T *pointer) : m_pointer(pointer)
    {
        if (m_pointer)
            m_pointer->AddRef();
    }
    CSmartPtr(const CSmartPtr &other) : CSmartPtr(other.m_pointer) {}
    ~CSmartPtr()
    {
        if (m_pointer)
            m_pointer->Release();
    }

    // Reference the new value before releasing the old: self-assignment is safe.
    CSmartPtr &operator=(T *pointer)
    {
        if (pointer)
            pointer->AddRef();
        T *old = m_pointer;
        m_pointer = pointer;
        if (old)
            old->Release();
        return *this;
    }
    CSmartPtr &operator=(const CSmartPtr &other) { return *this = other.m_pointer; }

    T *operator->() const { return m_pointer; }
    T &operator*() const { return *m_pointer; }
    operator T *() const { return m_pointer; }
    // Taking T * exactly makes these a better match than the built-in pointer comparison
    // reached through the conversion above; a const T * argument still compares there.
    bool operator==(T *pointer) const { return m_pointer == pointer; }
    bool operator!=(T *pointer) const { return m_pointer != pointer; }

private:
    T *m_pointer = nullptr;
};
