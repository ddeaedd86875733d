#include "BinaryData.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>

#include "CriticalSection.h"
#include "Exceptions.h"
#include "values/Base64.h"

namespace VxXmlLib16 {

// The shared bytes. Every change of the count, and growth, runs under the block's own
// recursive lock, so handles sharing a block may live in different threads.
class CBinaryData::CBinaryDataBlock
{
public:
    // A copying block leaves room to grow: twice the length, at least 8192 bytes.
    CBinaryDataBlock(const unsigned char *data, std::uint32_t length)
        : m_capacity(CapacityFor(length, 8192)), m_buffer(new unsigned char[m_capacity]), m_length(length)
    {
        std::memcpy(m_buffer.get(), data, length);
        ZeroTail();
    }
    // An adopting block takes the caller's buffer as it stands.
    CBinaryDataBlock(unsigned char *data, std::uint32_t length, std::uint32_t capacity)
        : m_capacity(capacity), m_buffer(data), m_length(length)
    {
    }

    CVXCriticalSection m_lock;
    std::uint32_t m_capacity;
    std::unique_ptr<unsigned char[]> m_buffer;
    std::uint32_t m_length;
    std::int32_t m_refCount = 1;

    static std::uint32_t CapacityFor(std::uint32_t length, std::uint64_t minimum)
    {
        const std::uint64_t wanted = std::max<std::uint64_t>(2ull * length, minimum);
        return static_cast<std::uint32_t>(std::min<std::uint64_t>(wanted, UINT32_MAX));
    }

    // The byte just past the used ones is readable through operator[]; keep it defined.
    void ZeroTail()
    {
        if (m_capacity > m_length)
            m_buffer[m_length] = 0;
    }

    void AddRef()
    {
        std::lock_guard<CVXCriticalSection> guard(m_lock);
        ++m_refCount;
    }

    // Moves the used bytes into a new buffer of that capacity.
    void Reallocate(std::uint32_t capacity)
    {
        std::unique_ptr<unsigned char[]> buffer(new unsigned char[capacity]);
        std::memcpy(buffer.get(), m_buffer.get(), m_length);
        m_buffer = std::move(buffer);
        m_capacity = capacity;
        ZeroTail();
    }

    void Grow(const unsigned char *data, std::uint32_t added)
    {
        std::lock_guard<CVXCriticalSection> guard(m_lock);
        if (m_refCount >= 2)
            throw CVxException(FormatString("Failed to append. [RefCount=%d]", m_refCount));
        const std::uint64_t newLength = static_cast<std::uint64_t>(m_length) + added;
        if (newLength > UINT32_MAX)
            throw CVxException("Binary data can't grow beyond 4 GB");
        if (newLength > m_capacity)
            Reallocate(CapacityFor(static_cast<std::uint32_t>(newLength), newLength));
        std::memcpy(m_buffer.get() + m_length, data, added);
        m_length = static_cast<std::uint32_t>(newLength);
        ZeroTail();
    }
};

CBinaryData::CBinaryData(const char *text)
{
    SetBuffer(text);
}

CBinaryData::CBinaryData(unsigned char *const data, std::uint32_t length, bool adopt)
{
    if (length == 0)
        return;
    if (adopt)
        m_block = new CBinaryDataBlock(data, length, length);
    else
        m_block = new CBinaryDataBlock(data, length);
}

CBinaryData::CBinaryData(const CBinaryData &other) : m_block(other.m_block)
{
    if (m_block)
        m_block->AddRef();
}

CBinaryData &CBinaryData::operator=(const CBinaryData &other)
{
    // Not guarded against self-assignment: a = a empties a, as the type always has.
    Clear();
    m_block = other.m_block;
    if (m_block)
        m_block->AddRef();
    return *this;
}

CBinaryData::~CBinaryData() { Clear(); }

void CBinaryData::Clear()
{
    CBinaryDataBlock *block = m_block;
    if (!block)
        return;
    m_block = nullptr;
    bool last;
    {
        std::lock_guard<CVXCriticalSection> guard(block->m_lock);
        last = --block->m_refCount == 0;
    }
    if (last)
        delete block;
}

std::uint32_t CBinaryData::GetLength() const { return m_block ? m_block->m_length : 0; }

const unsigned char *CBinaryData::GetData() const { return m_block ? m_block->m_buffer.get() : nullptr; }

void CBinaryData::SetBuffer(unsigned char *const data, std::uint32_t length)
{
    Clear();
    if (length != 0)
        m_block = new CBinaryDataBlock(data, length);
}

void CBinaryData::SetBuffer(const char *text)
{
    SetBuffer(reinterpret_cast<unsigned char *>(const_cast<char *>(text)),
              static_cast<std::uint32_t>(std::strlen(text)));
}

void CBinaryData::Detach()
{
    if (!m_block)
        return;
    std::lock_guard<CVXCriticalSection> guard(m_block->m_lock);
    if (m_block->m_refCount < 2)
        return;
    CBinaryDataBlock *copy = new CBinaryDataBlock(m_block->m_buffer.get(), m_block->m_length);
    --m_block->m_refCount;
    m_block = copy;
}

void CBinaryData::AppendBytes(const unsigned char *data, std::uint32_t length)
{
    if (length == 0)
        return;
    if (!m_block) {
        m_block = new CBinaryDataBlock(data, length);
        return;
    }
    Detach();
    m_block->Grow(data, length);
}

void CBinaryData::Append(unsigned char *const data, std::uint32_t length) { AppendBytes(data, length); }

void CBinaryData::Append(const CBinaryData &other)
{
    // Appending a value to itself reads bytes that growth may move: take a share first.
    const CBinaryData source(other);
    AppendBytes(source.GetData(), source.GetLength());
}

void CBinaryData::Append(const char *text)
{
    AppendBytes(reinterpret_cast<const unsigned char *>(text), static_cast<std::uint32_t>(std::strlen(text)));
}

void CBinaryData::Append(const std::string &text) { Append(text.c_str()); }

void CBinaryData::Append(char c) { Append(static_cast<unsigned char>(c)); }

void CBinaryData::Append(unsigned char c) { AppendBytes(&c, 1); }

unsigned char *CBinaryData::ReleaseData()
{
    if (!m_block)
        return nullptr;
    Detach();
    // This handle's reference goes whatever happens next.
    std::unique_ptr<CBinaryDataBlock> block(m_block);
    m_block = nullptr;
    {
        std::lock_guard<CVXCriticalSection> guard(block->m_lock);
        const std::int32_t count = --block->m_refCount;
        if (count > 0) {
            block.release(); // still owned by the other handles
            throw CVxException(FormatString("Failed to release data. [RefCount=%d]", count));
        }
    }
    return block->m_buffer.release();
}

const unsigned char &CBinaryData::operator[](std::uint32_t index) const
{
    static const unsigned char pastTheEnd = 0;
    if (!m_block || index > m_block->m_length)
        throw CVxException(FormatString("Index Out of range [%d]", static_cast<int>(index)));
    // An adopted block may have no byte behind the used ones; it reads as zero then.
    if (index == m_block->m_capacity)
        return pastTheEnd;
    return m_block->m_buffer[index];
}

unsigned char &CBinaryData::operator[](std::uint32_t index)
{
    if (!m_block || index > m_block->m_length)
        throw CVxException(FormatString("Index Out of range [%d]", static_cast<int>(index)));
    Detach();
    if (index == m_block->m_capacity) {
        // Give an adopted block the byte behind its used ones before handing it out.
        std::lock_guard<CVXCriticalSection> guard(m_block->m_lock);
        m_block->Reallocate(CBinaryDataBlock::CapacityFor(index, index + 1ull));
    }
    return m_block->m_buffer[index];
}

bool CBinaryData::operator==(const CBinaryData &other) const
{
    if (!m_block || !other.m_block)
        return !m_block && !other.m_block;
    return m_block->m_length == other.m_block->m_length &&
           std::memcmp(m_block->m_buffer.get(), other.m_block->m_buffer.get(), m_block->m_length) == 0;
}

std::string CBinaryData::GetAsHexString() const
{
    return m_block ? GetAsHexString(m_block->m_buffer.get(), m_block->m_length) : std::string();
}

std::string CBinaryData::GetAsHexString(unsigned char *const data, std::uint32_t length)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    if (!data)
        return std::string();
    std::string text(2 * static_cast<std::size_t>(length), '\0');
    for (std::uint32_t i = 0; i < length; ++i) {
        text[2 * i] = digits[data[i] >> 4];
        text[2 * i + 1] = digits[data[i] & 0x0F];
    }
    return text;
}

namespace {

int HexDigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    throw CVxException(FormatString("Invalid char in hex string [%c]", c));
}

} // namespace

std::uint32_t CBinaryData::ConvertToHexData(const char *text, unsigned char **data)
{
    const std::size_t length = std::strlen(text);
    if (length % 2 != 0)
        throw CVxException("Invalid length in hex string");
    const std::size_t count = length / 2;
    // One spare zero byte, so that the position just past the bytes exists.
    std::unique_ptr<unsigned char[]> buffer(new unsigned char[count + 1]);
    for (std::size_t i = 0; i < count; ++i)
        buffer[i] = static_cast<unsigned char>(HexDigitValue(text[2 * i]) << 4 | HexDigitValue(text[2 * i + 1]));
    buffer[count] = 0;
    *data = buffer.release();
    return static_cast<std::uint32_t>(count);
}

void CBinaryData::SetAsHexString(const char *text)
{
    Clear();
    unsigned char *data = nullptr;
    const std::uint32_t count = ConvertToHexData(text, &data);
    if (count == 0) {
        delete[] data;
        return;
    }
    m_block = new CBinaryDataBlock(data, count, count + 1);
}

std::string CBinaryData::GetAsBase64() const
{
    if (!m_block)
        return std::string();
    return CBase64().Encode(m_block->m_buffer.get(), m_block->m_length);
}

void CBinaryData::SetAsBase64(const char *text)
{
    Clear();
    if (!text || !*text)
        return;
    const std::size_t size = std::strlen(text) + 1;
    std::unique_ptr<unsigned char[]> buffer(new unsigned char[size]);
    const std::int32_t count = CBase64().Decode(text, buffer.get());
    // A bad character leaves a block of length 0: a value that is not plain empty.
    m_block = new CBinaryDataBlock(buffer.release(), static_cast<std::uint32_t>(count),
                                   static_cast<std::uint32_t>(size));
}

} // namespace VxXmlLib16
