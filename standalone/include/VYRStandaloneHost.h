#ifndef VYRStandaloneHost_H
#define VYRStandaloneHost_H

/**
 * @file
 * The public face of the stand-alone host: an in-memory host for modules that are written against `host/`.
 *
 * What it decides where a host is free:
 * - Components. `GetImpl(0)` gives one root for every facet, extension and tie of an object. A cast asks the object,
 *   then the dictionary along its chain of types, most derived first. One extension instance per object and class,
 *   made on demand and linked before its constructor runs; it lives until the object dies. While it is under
 *   construction, a request for its own interfaces on that object gives null. A call through a null handle throws
 *   NullHandleError, the reaction to an unexpected null pointer throws NullPointerError.
 * - Keys and types live until the process ends; an inherited attribute has one key on all types.
 * - Objects. A component attribute aggregates, a reference attribute only refers. An object that gains an owner leaves
 *   its container's list; one that loses its owner leaves the model. A component attribute that names a type comes
 *   into being with its owner, in silence.
 * - Start-ups. One prototype per type, inherited and overlaid down the chain of types. Writes to prototypes are silent.
 *   They take no objects, no added attributes and no extensions, since all threads share them.
 * - Lists. `MoveInPosition` passes over what stands at the position already, so that moving one occurrence after the
 *   other brings all of them side by side.
 * - Values. An unset value is not valuated and is something else than an empty text. A text that cannot be read and a
 *   value of the wrong kind change nothing and tell nobody.
 * - Notifications. Every successful write tells the written object's ORXIInstance once, after the store, inside the
 *   write, also when the new value equals the old. Taking a value away where there is none tells nobody. The object is
 *   held for the length of the call.
 * - Errors and traces are kept per thread; everything process-wide is made on first use and never destroyed.
 *
 * - Callbacks go to the subscribers of an object in the order of subscription. A configuration transaction starts and
 *   completes whatever the start answers.
 * - Units. A real that measures something is kept in SI; a text may carry a unit of its quantity, and the value as text
 *   carries the SI unit. An optional attribute has a key on every object, and is carried once `AddAttribute` has made
 * it.
 * - Documents. A component that has the type of the one that came with its owner is laid over it, so that its start-up
 *   is the owner's. No type brings more than 1,000 objects into being. A save removes what saves that were stopped have
 *   left in its folder. Numbers are read to the nearest double.
 * - Objects that hold each other, by references or by listening, die with their model, also when they have left it.
 */

#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneInstruments.h"
#include "VYRStandaloneModel.h"
#include "VYRStandaloneServices.h"

#endif
