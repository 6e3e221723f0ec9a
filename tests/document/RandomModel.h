#ifndef RandomModel_H
#define RandomModel_H

#include <cstdint>
#include <random>
#include <vector>

#include "ORXISpecAttrAccess.h"
#include "VYRStandaloneModel.h"

/**
 * Makes small models of everything that a document holds, by chance: objects of all types of the test catalog and of
 * Choices and records, values of every kind written and taken away, lists with empty entries, components in each
 * other, table columns, references of every kind, added and optional attributes, further names. The same seed gives the
 * same model.
 */
class RandomModel
{
public:
    explicit RandomModel(std::uint32_t iSeed) : m_random(iSeed) {}

    VYRStandalone::Model Make();

private:
    int Below(int iEnd) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(iEnd)); }
    ORXUnicodeString Text();
    double Real();
    int Integer();
    /// Any object of the model, or null.
    ORXISpecObject_var Anyone();
    /// A new object or a table column, that does not stand anywhere yet.
    ORXISpecObject_var NewComponent();

    void Change(const ORXISpecObject_var& iObject);
    void ChangeAttribute(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey);
    void ChangeScalar(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey);
    void ChangeObject(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey);
    void ChangeList(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey);
    void ChangeObjectList(const ORXISpecObject_var& iObject, const ORXISpecAttrKey_var& iKey);
    void AddAttribute(const ORXISpecObject_var& iObject);
    void GiveNames(const ORXISpecObject_var& iObject);
    /// A Choice that is told of a write may take its data out of the model; a saved model does not refer to such.
    static void ForgetWhatLeft(const ORXISpecObject_var& iObject);
    /// The object and what came with it.
    void Know(const ORXISpecObject_var& iObject);

    std::mt19937 m_random;
    VYRStandalone::Model m_model;
    std::vector<ORXISpecObject_var> m_objects;
};

#endif
