#ifndef TwoModels_H
#define TwoModels_H

/**
 * @file
 * The twin and the real model, side by side: the same operations on both, and what differs afterwards.
 */

#include "Comparison.h"
#include "Operation.h"

class TwoModels
{
public:
    /// Both hold the initial objects. Nothing has been compared.
    TwoModels();

    /**
     * Does an operation on both, and compares: the answer, the reports, the calls and notifications in their order, and
     * every object that was touched. An operation whose objects are not there, or not in the model, does nothing.
     */
    Difference Do(const Operation& iOperation);

    /// Compares everything.
    Difference CompareAll() { return m_comparison.CompareAll(m_real, false); }

    Twin::Configurator& Twin() { return m_twin; }
    /// Objects by which operations are addressed, in their order.
    const std::vector<Twin::Object*>& Known() const { return m_known; }
    /// How an object of the twin is written in an operation; empty when there is no way to it.
    std::string AddressOf(const Twin::Object& iObject) const;

    long long Compared() const { return m_comparison.Compared(); }
    /// Whether the last operation did something.
    bool HasRun() const { return m_hasRun; }

private:
    Twin::Object* Resolve(const std::string& iAddress) const;
    bool Read(const Operation& iOperation, const char* iSignature, TwinArguments& oTwin, RealArguments& oReal) const;
    Difference Run(const OperationKind& iKind, const TwinArguments& iTwin, const RealArguments& iReal);
    Difference Create(const std::string& iType);
    Difference SaveAndLoad();
    void DropExtensions();
    void Know(Twin::Object* ioObject);
    Difference CompareRecords(const std::vector<std::string>& iRealLines);

    Twin::Configurator m_twin;
    VYRStandalone::Model m_real;
    Comparison m_comparison;
    std::vector<Twin::Object*> m_known;
    bool m_hasRun = false;
};

#endif
