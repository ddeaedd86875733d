#include "XmlObjectBase.h"

#include "Exceptions.h"

namespace VxXmlLib16 {

namespace {

[[noreturn]] void ThrowAlreadySet(const std::string &selected)
{
    throw CVxInvalidStateException(FormatString(
        "The Property [%s] is already set. Only one element within this class bay be set at a time", selected.c_str()));
}

} // namespace

void CXmlObjectBase::Choice_CollectionChanged(const char *name, std::int32_t count, std::string &selected)
{
    if (selected == name) {
        if (count == 0)
            selected.clear();
    } else if (selected.empty()) {
        if (count > 0)
            selected = name;
    } else if (count != 0) {
        ThrowAlreadySet(selected);
    }
}

void CXmlObjectBase::Choice_SelectElement(const char *name, CXmlObjectBase *value, std::string &selected)
{
    if (selected == name) {
        if (!value)
            selected.clear();
    } else if (selected.empty()) {
        selected = name;
    } else if (value) {
        ThrowAlreadySet(selected);
    }
}

void CXmlObjectBase::Choice_SetElementValid(bool valid, const char *name, std::string &selected)
{
    if (!valid) {
        selected.clear();
        return;
    }
    // For a member that is already selected: an empty selection differs too, and the
    // message then names the empty string.
    if (selected != name)
        throw CVxInvalidStateException(FormatString(
            "The Property %s is already set. Only one element within this class bay be set at a time",
            selected.c_str()));
}

void CXmlObjectBase::Throw_IfElementNameDiffers(CXmlObjectBase *value, const char *name)
{
    if (!value)
        return;
    const std::string actual = value->GetBase()->m_elementName;
    if (actual != name)
        throw CVxInvalidParamException(FormatString(
            "This property requires an element with the name %s the element being set has the element name %s", name,
            actual.c_str()));
}

void CXmlObjectBase::Throw_IfPropertyIsNull(CXmlObjectBase *value, const char *name)
{
    if (!value)
        throw CVxInvalidParamException(FormatString("The Property [%s] is mandatory, it may node be NULL", name));
}

bool CXmlObjectBase::IsNamespaceValid(const char *namespaceUri, const char *rule, const char *targetNamespace)
{
    const std::string uri = namespaceUri;
    const std::string wholeRule = rule;
    const auto test = [&](const std::string &token) {
        if (token == "##any")
            return true;
        if (token == "##other")
            return uri != targetNamespace;
        if (token == "##local")
            return uri.empty();
        if (token == "##targetNamespace")
            return uri == targetNamespace;
        return uri == wholeRule || uri.empty();
    };
    const std::size_t blank = wholeRule.find(' ');
    if (blank == std::string::npos)
        return test(wholeRule);
    // After the first token the rule is read as a single blank, whose token is empty;
    // where that fails too, the reading would go round for ever: the answer is false.
    return test(wholeRule.substr(0, blank)) || test(std::string());
}

void CXmlObjectBase::TestNamespace(const char *namespaceUri, const char *rule, const char *targetNamespace)
{
    if (!IsNamespaceValid(namespaceUri, rule, targetNamespace))
        throw CVxInvalidNamespaceException(
            FormatString("Invalid namespace [%s]. The namespace must be one of [%s] where the target namespace is [%s].",
                         namespaceUri, rule, targetNamespace),
            "");
}

} // namespace VxXmlLib16
