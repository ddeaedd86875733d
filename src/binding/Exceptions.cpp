#include "Exceptions.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

namespace VxXmlLib16 {

CVxException::CVxException() = default;

CVxException::CVxException(std::string message) : m_message(std::move(message)) {}

CVxException::CVxException(std::string message, const CVxException &inner)
    : m_message(std::move(message)), m_inner(inner.Clone())
{
}

CVxException::CVxException(std::string message, std::string path) : m_message(std::move(message))
{
    SetPath(std::move(path));
}

CVxException::CVxException(std::string message, std::string path, const CVxException &inner)
    : m_message(std::move(message)), m_inner(inner.Clone())
{
    SetPath(std::move(path));
}

CVxException::CVxException(const CVxException &other)
    : m_message(other.m_message), m_path(other.m_path),
      m_inner(other.m_inner ? other.m_inner->Clone() : nullptr)
{
}

CVxException &CVxException::operator=(const CVxException &other)
{
    if (this != &other) {
        m_message = other.m_message;
        m_inner.reset(other.m_inner ? other.m_inner->Clone() : nullptr);
    }
    return *this;
}

CVxException::~CVxException() = default;

void CVxException::SetPath(std::string path)
{
    if (path.empty())
        return;
    m_message += "\nPath: ";
    m_message += path;
    m_path = std::move(path);
}

std::string CVxException::GetFullMessage() const
{
    std::string text = m_message;
    for (const CVxException *inner = m_inner.get(); inner; inner = inner->m_inner.get()) {
        text += '\n';
        text += inner->m_message;
    }
    return text;
}

CVxException *CVxException::Clone() const { return new CVxException(*this); }

CVxValidationException::CVxValidationException(std::string message, std::string path)
    : CVxException(std::move(message), std::move(path))
{
}

CVxValidationException::CVxValidationException(std::string message, std::string path,
                                               const CVxException &inner)
    : CVxException(std::move(message), std::move(path), inner)
{
}

CVxValidationException::CVxValidationException(const CVxException &other) : CVxException(other) {}

CVxValidationException &CVxValidationException::operator=(const CVxValidationException &other)
{
    // Own field first: the base assignment frees the old inner exception, which may be
    // the very object assigned from.
    m_reserved = other.m_reserved;
    CVxException::operator=(other);
    return *this;
}

CVxException *CVxValidationException::Clone() const { return new CVxValidationException(*this); }

CVxInvalidNamespaceException::CVxInvalidNamespaceException(std::string message, std::string path)
    : CVxValidationException(std::move(message), std::move(path))
{
}

CVxInvalidNamespaceException::CVxInvalidNamespaceException(std::string message, std::string path,
                                                           const CVxException &inner)
    : CVxValidationException(std::move(message), std::move(path), inner)
{
}

CVxInvalidNamespaceException::CVxInvalidNamespaceException(const CVxException &other)
    : CVxValidationException(other)
{
}

CVxException *CVxInvalidNamespaceException::Clone() const
{
    return new CVxInvalidNamespaceException(*this);
}

CVxInvalidValueException::CVxInvalidValueException(std::string message)
    : CVxValidationException(std::move(message), std::string())
{
}

CVxInvalidValueException::CVxInvalidValueException(std::string message, const CVxException &inner)
    : CVxValidationException(std::move(message), std::string(), inner)
{
}

CVxInvalidValueException::CVxInvalidValueException(const CVxException &other)
    : CVxValidationException(other)
{
}

CVxException *CVxInvalidValueException::Clone() const { return new CVxInvalidValueException(*this); }

template class CVxSimpleException<InvalidParamTag>;
template class CVxSimpleException<InvalidStateTag>;
template class CVxSimpleException<OverFlowTag>;

std::string FormatString(const char *format, ...)
{
    va_list args;
    va_start(args, format);
    va_list sizing;
    va_copy(sizing, args);
    const int length = std::vsnprintf(nullptr, 0, format, sizing);
    va_end(sizing);
    std::string text;
    if (length > 0) {
        text.resize(static_cast<std::size_t>(length));
        std::vsnprintf(text.data(), text.size() + 1, format, args);
    }
    va_end(args);
    return text;
}

} // namespace VxXmlLib16
