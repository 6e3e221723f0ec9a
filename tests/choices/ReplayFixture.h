#ifndef ReplayFixture_H
#define ReplayFixture_H

/**
 * @file
 * Choices beside an installation whose configurations are for their data objects.
 */

#include <functional>

#include "ChoiceTest.h"

/**
 * The configurations of the application's own configurator, of which a process loads only one set:
 *
 * | name       | what it does to an object                                  |
 * |------------|------------------------------------------------------------|
 * | makeForty  | custom default 40 of count                                 |
 * | makeFifty  | custom default 50 of count                                 |
 * | makeLabel  | custom default "made" of label                             |
 * | makeWrong  | fails: it writes a list to count                           |
 * | makeNone   | has no items                                               |
 * | recordAll  | to a Choice: makeForty for "Data" while its value is beta, |
 * |            | makeLabel for "Data" while its value is alpha              |
 */
class ReplayFixture : public ChoiceTest
{
protected:
    void SetUp() override;
    void TearDown() override;
};

/// The names of the configurations that are applied while the action runs, in their order.
Lines Applied(const std::function<void()>& iAction);

#endif
