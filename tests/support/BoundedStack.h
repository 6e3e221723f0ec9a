#ifndef BoundedStack_H
#define BoundedStack_H

/**
 * @file
 * Running a test on a stack of a given size, so that a recursion that does not end dies soon and in that test.
 */

#include <cstddef>
#include <functional>

/**
 * Runs the body on a thread of its own with a stack of so many KiB, and waits for it. Reports, planted faults and
 * recorders belong to a thread: the body plants and looks for itself. What it throws is thrown here. Under a sanitizer
 * the stack is larger, as its frames are.
 */
void OnBoundedStack(std::size_t iKibibytes, const std::function<void()>& iBody);

#endif
