#pragma once

#include <string>

#include "BinaryData.h"

namespace VxTest {

// Parses the text with Expat in namespace mode; returns the error text with its line, or
// empty when the text is well-formed.
std::string ExpatCheck(const std::string &text);

// The bytes of a buffer; an empty buffer may have no data at all.
inline std::string Bytes(const VxXmlLib16::CBinaryData &data)
{
    return data.GetLength() ? std::string(reinterpret_cast<const char *>(data.GetData()), data.GetLength())
                            : std::string();
}

// A file name in the tests' scratch directory.
inline std::string TempPath(const char *name) { return std::string(VX_TEST_TMP_DIR) + "/" + name; }

// Sets a process-wide switch for one scope and restores it afterwards.
template <void (*Set)(bool), bool (*Get)()>
class SwitchScope
{
public:
    explicit SwitchScope(bool on) : m_saved(Get()) { Set(on); }
    ~SwitchScope() { Set(m_saved); }

private:
    bool m_saved;
};

} // namespace VxTest
