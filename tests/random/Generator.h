#ifndef Generator_H
#define Generator_H

/**
 * @file
 * Random operations. The numbers come from a small generator of our own, so that a seed means the same everywhere.
 */

#include <cstdint>

#include "TwoModels.h"

class Generator
{
public:
    explicit Generator(std::uint64_t iSeed) : m_state(iSeed) {}

    /// An operation that has something to work on in the twin as it stands now.
    Operation Next(TwoModels& ioModels);

private:
    std::uint64_t Random();
    /// 0 to `iEnd` - 1.
    int Below(int iEnd) { return static_cast<int>(Random() % static_cast<std::uint64_t>(iEnd)); }
    bool OneIn(int iCount) { return Below(iCount) == 0; }
    template <class List> const auto& Any(const List& iList)
    {
        return iList[static_cast<std::size_t>(Below(static_cast<int>(std::size(iList))))];
    }

    const OperationKind& Kind();
    std::string Word(const char* iLetters);
    Twin::Object* Target(const char* iLetters);
    const Twin::Attribute* AnyOf(const Twin::Object& iObject, const char* iLetters);
    std::string Name(char iLetter);
    std::string AddedName();
    std::string Text();
    std::string Choice();
    std::string ChoiceList();
    std::string Startups();
    std::string Position();
    Twin::Object* Operand();
    std::string OperandAddress();
    std::string Address(Twin::Object* iObject);

    std::uint64_t m_state;
    TwoModels* m_models = nullptr;
    /// Of the operation that is being made.
    Twin::Object* m_self = nullptr;
    const Twin::Attribute* m_attribute = nullptr;
    std::size_t m_choiceCount = 0;
};

#endif
