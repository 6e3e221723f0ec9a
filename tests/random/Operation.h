#ifndef Operation_H
#define Operation_H

/**
 * @file
 * Operations on both models: their text, and what they do to the twin and to the real one.
 */

#include <functional>
#include <string>
#include <vector>

#include "ORXISpecObject.h"
#include "TwinConfigurator.h"

/**
 * One operation as text, as in `store.text #3/zone outputs "a b" 2`. Objects are given by their number in the order in
 * which they were made by the run (of the initial model, then by "create"), or by the way from one: "#3/zones[2]" is
 * the second entry of the list `zones`. "null" is none. Words that are empty or hold blanks or quotes stand in quotes.
 */
struct Operation
{
    std::string verb;
    std::vector<std::string> words;

    std::string Text() const;
    /// @throws std::invalid_argument
    static Operation Parse(const std::string& iLine);
};

/// The words of an operation, read; `Object` is the twin's or the real one's handle on an object.
template <class Object> struct OperationArguments
{
    std::vector<Object> objects;
    std::vector<std::string> texts;
    std::vector<int> integers;
    double real = 0.0;
    std::vector<std::string> list;

    Object Self() const { return objects[0]; }
    const std::string& Name() const { return texts[0]; }
};

using TwinArguments = OperationArguments<Twin::Object*>;
using RealArguments = OperationArguments<ORXISpecObject_var>;

/**
 * A kind of operation. Its signature has a letter for each word:
 *
 * | letter | word                                                                  |
 * |--------|-----------------------------------------------------------------------|
 * | o      | object; d one with default management, c a Choice, m a managed Choice |
 * | s      | name of an attribute, of a scalar value mostly                        |
 * | q      | the same, or one that has no value: null is given                     |
 * | v      | name of an attribute, of a list of values mostly                      |
 * | L      | name of an attribute, of a list of objects mostly                     |
 * | O      | name of an attribute, of an object mostly                             |
 * | x      | an object to be a value, or null; y several, with commas              |
 * | i r b  | integer, real, 0 or 1                                                 |
 * | n      | position in a list, 0 for none                                        |
 * | t      | text                                                                  |
 * | w z    | a choice; several, with commas (a lone "-" is none)                   |
 * | u      | startups, with commas                                                 |
 * | N K    | name and kind of an attribute to be added                             |
 * | k      | name of a configuration                                               |
 * | T      | name of a type                                                        |
 */
struct OperationKind
{
    const char* verb;
    const char* signature;
    /// How often it comes, against the others.
    int weight;
    std::function<std::string(Twin::Configurator&, const TwinArguments&)> onTwin;
    std::function<std::string(const RealArguments&)> onReal;
};

/// All but those that are about the model as a whole: "create TYPE", "save", "drop".
const std::vector<OperationKind>& OperationKinds();
const OperationKind* FindOperationKind(const std::string& iVerb);

std::vector<OperationKind> ValueOperations();
std::vector<OperationKind> ListOperationKinds();
std::vector<OperationKind> DefaultOperations();
std::vector<OperationKind> ChoiceOperations();

/// A status as it is compared.
std::string StatusText(HRESULT iStatus);

/// "a,b" as two texts; "-" as none.
std::vector<std::string> SplitWords(const std::string& iWord);

#endif
