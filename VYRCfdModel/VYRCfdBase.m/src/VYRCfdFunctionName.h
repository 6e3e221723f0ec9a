#ifndef VYRCfdFunctionName_H
#define VYRCfdFunctionName_H

/**
 * @file
 * Qualified names of functions, out of what the compiler calls "pretty". Reports and traces carry them, and they have
 * to be the same under every compiler, so nothing of the return type or of the arguments may remain.
 */

#include <cstddef>
#include <string_view>

namespace VYRCfd
{
namespace Detail
{
constexpr bool IsNameCharacter(char iCharacter)
{
    return (iCharacter >= 'a' && iCharacter <= 'z') || (iCharacter >= 'A' && iCharacter <= 'Z') ||
           (iCharacter >= '0' && iCharacter <= '9') || iCharacter == '_' || iCharacter == '~' || iCharacter == ':';
}

/// First position behind `iFrom` of the bracket that opens the argument list; brackets inside < > do not count.
constexpr std::size_t ArgumentList(std::string_view iPretty, std::size_t iFrom)
{
    int depth = 0;
    for (std::size_t at = iFrom; at < iPretty.size(); ++at)
    {
        if (iPretty[at] == '<')
            ++depth;
        else if (iPretty[at] == '>')
            --depth;
        else if (iPretty[at] == '(' && depth == 0)
            return at;
    }
    return iPretty.size();
}

/// Start of the qualified name that ends at `iEnd`, template arguments included.
constexpr std::size_t NameStart(std::string_view iPretty, std::size_t iEnd)
{
    int depth = 0;
    std::size_t at = iEnd;
    while (at > 0)
    {
        const char previous = iPretty[at - 1];
        if (previous == '>')
            ++depth;
        else if (previous == '<')
            --depth;
        else if (depth == 0 && !IsNameCharacter(previous))
            break;
        --at;
    }
    return at;
}

/// "operator" as a word of its own, which takes what follows it, up to the arguments, into the name.
constexpr std::size_t OperatorWord(std::string_view iPretty)
{
    constexpr std::string_view word = "::operator";
    const std::size_t at = iPretty.find(word);
    if (at == std::string_view::npos)
        return at;
    const std::size_t behind = at + word.size();
    return behind < iPretty.size() && IsNameCharacter(iPretty[behind]) ? std::string_view::npos : at;
}
} // namespace Detail

/// The qualified name within a pretty function text, as a part of that text.
constexpr std::string_view QualifiedPart(std::string_view iPretty)
{
    const std::size_t operatorWord = Detail::OperatorWord(iPretty);
    if (operatorWord != std::string_view::npos)
    {
        const std::size_t symbol = operatorWord + std::string_view("::operator").size();
        const bool isCall = iPretty.substr(symbol, 2) == "()";
        const std::size_t end = iPretty.find('(', isCall ? symbol + 2 : symbol);
        const std::size_t start = Detail::NameStart(iPretty, operatorWord);
        return iPretty.substr(start, end - start);
    }
    const std::size_t end = Detail::ArgumentList(iPretty, 0);
    const std::size_t start = Detail::NameStart(iPretty, end);
    return iPretty.substr(start, end - start);
}

/// A zero-terminated copy of a qualified name, made at compile time.
template <std::size_t Size> class FunctionName
{
public:
    consteval explicit FunctionName(const char (&iPretty)[Size])
    {
        const std::string_view name = QualifiedPart(std::string_view(iPretty, Size - 1));
        for (std::size_t at = 0; at < name.size(); ++at)
            m_text[at] = name[at];
    }

    constexpr const char* Text() const noexcept { return m_text; }

private:
    char m_text[Size] = {};
};

// Both compilers' forms, for each kind of function.
static_assert(QualifiedPart("long int A::Apply(const ORXHandle<B>&, const C&)") == "A::Apply");
static_assert(QualifiedPart("HRESULT A::Get(int &, int) const") == "A::Get");
static_assert(QualifiedPart("ORXISpecAttrKey *A::Key(B *)") == "A::Key");
static_assert(QualifiedPart("std::vector<C, std::allocator<C> > A::List() const") == "A::List");
static_assert(QualifiedPart("A::A()") == "A::A");
static_assert(QualifiedPart("virtual A::~A()") == "A::~A");
static_assert(QualifiedPart("A& A::operator=(const A&)") == "A::operator=");
static_assert(QualifiedPart("A::operator bool() const") == "A::operator bool");
static_assert(QualifiedPart("int A::operator()(int) const") == "A::operator()");
static_assert(QualifiedPart("static int N::A<T>::Make(T) [with T = int]") == "N::A<T>::Make");
} // namespace VYRCfd

#endif
