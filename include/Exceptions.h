#pragma once
// The one failure channel of the library: CVxException and its six kinds, thrown by
// value. A failure inside a nested object is wrapped on its way out, so the caller sees
// a chain from "what was being done" down to "what went wrong", plus a document path.

#include <memory>
#include <string>

namespace VxXmlLib16 {

class CVxException
{
public:
    CVxException();
    explicit CVxException(std::string message);
    CVxException(std::string message, const CVxException &inner);
    CVxException(std::string message, std::string path);
    CVxException(std::string message, std::string path, const CVxException &inner);
    CVxException(const CVxException &other);
    // Copies the message and a clone of the inner exception, but keeps the path of the
    // target: assignment is deliberately not the same as copy construction.
    CVxException &operator=(const CVxException &other);
    virtual ~CVxException();

    std::string GetMessage() const { return m_message; }
    std::string GetPath() const { return m_path; }
    const CVxException *GetInnerException() const { return m_inner.get(); }
    // The message, then the full message of each inner exception, one per line.
    std::string GetFullMessage() const;

protected:
    // A new object of the most derived class, so that a wrapped exception keeps its kind.
    virtual CVxException *Clone() const;

private:
    void SetPath(std::string path);

    std::string m_message;
    std::string m_path;
    std::unique_ptr<CVxException> m_inner;
};

// The document does not fit the schema facts.
class CVxValidationException : public CVxException
{
public:
    CVxValidationException() = default;
    CVxValidationException(std::string message, std::string path);
    CVxValidationException(std::string message, std::string path, const CVxException &inner);
    explicit CVxValidationException(const CVxException &other);
    CVxValidationException(const CVxValidationException &other) = default;
    CVxValidationException &operator=(const CVxValidationException &other);
    ~CVxValidationException() override = default;

protected:
    CVxException *Clone() const override;

private:
    std::string m_reserved; // constructed empty, copied, never read
};

// A namespace is refused by a rule.
class CVxInvalidNamespaceException final : public CVxValidationException
{
public:
    CVxInvalidNamespaceException() = default;
    CVxInvalidNamespaceException(std::string message, std::string path);
    CVxInvalidNamespaceException(std::string message, std::string path, const CVxException &inner);
    explicit CVxInvalidNamespaceException(const CVxException &other);
    CVxInvalidNamespaceException(const CVxInvalidNamespaceException &other) = default;
    CVxInvalidNamespaceException &operator=(const CVxInvalidNamespaceException &other) = default;

protected:
    CVxException *Clone() const override;
};

// A text or value can't be converted or breaks a facet. Always without a path, so the
// first FromXml_Int it crosses adds one.
class CVxInvalidValueException final : public CVxValidationException
{
public:
    CVxInvalidValueException() = default;
    explicit CVxInvalidValueException(std::string message);
    CVxInvalidValueException(std::string message, const CVxException &inner);
    explicit CVxInvalidValueException(const CVxException &other);
    CVxInvalidValueException(const CVxInvalidValueException &other) = default;
    CVxInvalidValueException &operator=(const CVxInvalidValueException &other) = default;

protected:
    CVxException *Clone() const override;
};

// The three kinds below CVxException that carry no path share one shape.
template <class Tag>
class CVxSimpleException final : public CVxException
{
public:
    CVxSimpleException() = default;
    explicit CVxSimpleException(std::string message) : CVxException(std::move(message)) {}
    CVxSimpleException(std::string message, const CVxException &inner)
        : CVxException(std::move(message), inner) {}
    explicit CVxSimpleException(const CVxException &other) : CVxException(other) {}
    CVxSimpleException(const CVxSimpleException &other) = default;
    CVxSimpleException &operator=(const CVxSimpleException &other) = default;

protected:
    CVxException *Clone() const override { return new CVxSimpleException(*this); }
};

struct InvalidParamTag;
struct InvalidStateTag;
struct OverFlowTag;
// A bad argument from the caller: an index, a null mandatory property, a wrong name.
using CVxInvalidParamException = CVxSimpleException<InvalidParamTag>;
// The operation does not fit the object's state.
using CVxInvalidStateException = CVxSimpleException<InvalidStateTag>;
// A number does not fit the target.
using CVxOverFlowException = CVxSimpleException<OverFlowTag>;

extern template class CVxSimpleException<InvalidParamTag>;
extern template class CVxSimpleException<InvalidStateTag>;
extern template class CVxSimpleException<OverFlowTag>;

// printf into a string of whatever length the arguments need; never truncates.
std::string FormatString(const char *format, ...) __attribute__((format(printf, 1, 2)));

} // namespace VxXmlLib16
