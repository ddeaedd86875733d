#pragma once
// The byte buffer of the whole library: a handle on a shared, reference-counted,
// growable block with copy-on-write. Copies of a value share the bytes until one of
// them changes.

#include <cstdint>
#include <string>

namespace VxXmlLib16 {

class CBinaryData
{
public:
    CBinaryData() = default;
    // The text's bytes without the terminator.
    explicit CBinaryData(const char *text);
    // With adopt the value takes ownership of data, which must come from new[].
    CBinaryData(unsigned char *const data, std::uint32_t length, bool adopt);
    CBinaryData(const CBinaryData &other);
    // Clears this value first, then shares the other's block: so a = a empties a.
    CBinaryData &operator=(const CBinaryData &other);
    virtual ~CBinaryData();

    void Clear();
    std::uint32_t GetLength() const;
    // The shared bytes, without detaching; null when empty.
    const unsigned char *GetData() const;
    void SetBuffer(unsigned char *const data, std::uint32_t length);
    void SetBuffer(const char *text);
    void Append(unsigned char *const data, std::uint32_t length);
    void Append(const CBinaryData &other);
    void Append(const char *text);
    // Stops at the first NUL, as the string's C text does.
    void Append(const std::string &text);
    void Append(char c);
    void Append(unsigned char c);
    // Hands the bytes to the caller, who frees them with delete[]; the value is empty after.
    unsigned char *ReleaseData();

    // The index may equal the length: that is the position just past the bytes in use.
    const unsigned char &operator[](std::uint32_t index) const;
    unsigned char &operator[](std::uint32_t index);

    bool operator==(const CBinaryData &other) const;
    bool operator!=(const CBinaryData &other) const { return !(*this == other); }

    // Upper-case hex, two characters a byte.
    std::string GetAsHexString() const;
    static std::string GetAsHexString(unsigned char *const data, std::uint32_t length);
    void SetAsHexString(const char *text);
    std::string GetAsBase64() const;
    // An invalid character leaves a value with a block of length 0, not an exception.
    void SetAsBase64(const char *text);

protected:
    // Parses hex text into a new buffer; returns the byte count.
    static std::uint32_t ConvertToHexData(const char *text, unsigned char **data);

private:
    class CBinaryDataBlock;

    void Detach();
    void AppendBytes(const unsigned char *data, std::uint32_t length);

    CBinaryDataBlock *m_block = nullptr;
};

} // namespace VxXmlLib16
