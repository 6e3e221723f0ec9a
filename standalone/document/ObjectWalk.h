#ifndef ObjectWalk_H
#define ObjectWalk_H

/**
 * @file
 * The objects of a model in the order in which its document holds them.
 */

#include <cstddef>
#include <vector>

namespace VYRStandalone
{
class Container;
class FeatureObject;

/// How deep components may stand inside each other in a document: each level is one of reading and of writing.
inline constexpr std::size_t DeepestNesting = 200;

/// Components of an object, each once, in the order of their attributes. Borrowed.
std::vector<FeatureObject*> ComponentsOf(const FeatureObject& iObject);

/// Appends an object, its components and what is inside these. Borrowed.
void AppendTree(FeatureObject& iObject, std::vector<FeatureObject*>& ioAll);

/// Top-level objects, each followed by its components and what is inside these. Borrowed.
std::vector<FeatureObject*> AllObjects(const Container& iContainer);
} // namespace VYRStandalone

#endif
