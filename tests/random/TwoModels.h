#ifndef TwoModels_H
#define TwoModels_H

/**
 * @file
 * The twin and the real model, side by side: the same operations on both, and what differs afterwards.
 */

#include <functional>
#include <memory>

#include "Comparison.h"
#include "Operation.h"

/// Makes the twin; empty makes the one that is right.
using TwinMaker = std::function<std::unique_ptr<Twin::Configurator>()>;

class TwoModels
{
public:
    /// Both hold the initial objects, which have been compared.
    explicit TwoModels(const TwinMaker& iMaker = {});

    /**
     * Does an operation on both, and compares: the answer, the reports, the calls and notifications in their order, and
     * every object that was touched. An operation whose objects are not there, or not in the model, does nothing.
     */
    Difference Do(const Operation& iOperation);

    /// Compares everything.
    Difference CompareAll() { return m_comparison.CompareAll(m_real, false); }

    Twin::Configurator& Twin() { return *m_twin; }
    /// Objects by which operations are addressed, in their order.
    const std::vector<Twin::Object*>& Known() const { return m_known; }
    /// How an object of the twin is written in an operation; empty when there is no way to it.
    std::string AddressOf(const Twin::Object& iObject) const;

    long long Compared() const { return m_comparison.Compared(); }
    /// What was met, and how often: answers by verb, calls and notifications by their first word, reports.
    const std::map<std::string, long long>& Met() const { return m_met; }
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

    std::unique_ptr<Twin::Configurator> m_twin;
    VYRStandalone::Model m_real;
    Comparison m_comparison;
    std::vector<Twin::Object*> m_known;
    std::map<std::string, long long> m_met;
    bool m_hasRun = false;
};

#endif
