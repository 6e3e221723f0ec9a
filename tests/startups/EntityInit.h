#ifndef EntityInit_H
#define EntityInit_H

/**
 * @file
 * A feature type that takes steps of its own while it gets its place.
 */

#include <functional>

#include "ORXISamAnalysisEntityInit.h"
#include "VYRCfdExtension.h"

/// What the steps of all objects do besides showing themselves, and what they answer.
struct EntitySteps
{
    std::function<void()> init;
    std::function<void()> postInit;
    HRESULT answer = S_OK;
};

/**
 * Extends "StartupTestEntity". Each step adds a line with where the object stands to every
 * VYRStandalone::CallRecorder: "init Pump", "postinit Choice.1/Data".
 */
class EntityInit final : public VYRCfdExtension<EntityInit, ORXISamAnalysisEntityInit>
{
public:
    static constexpr const char* ClassName = "EntityInit";
    static constexpr const char* LateType = "StartupTestEntity";
    static constexpr const char* Framework = "Test";
    static ORXMetaClass* BaseMeta();

    /// Declares the type, enters the class into the dictionary, and makes the steps do nothing. May be called again.
    static void Register();

    static EntitySteps& Steps();

    HRESULT Init() override;
    HRESULT PostInit() override;

private:
    HRESULT Take(const char* iLine, const std::function<void()>& iStep);
};

#endif
