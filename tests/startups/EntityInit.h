#ifndef EntityInit_H
#define EntityInit_H

/**
 * @file
 * A feature type that takes steps of its own while it gets its place.
 */

#include "ORXISamAnalysisEntityInit.h"
#include "VYRCfdExtension.h"

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

    /// Declares the type and enters the class into the dictionary. May be called again.
    static void Register();

    /// What both steps answer.
    static HRESULT& Answer();

    HRESULT Init() override;
    HRESULT PostInit() override;

private:
    HRESULT Note(const char* iStep);
};

#endif
