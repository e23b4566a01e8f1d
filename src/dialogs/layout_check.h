#pragma once
// The rules every dialog layout keeps, checked against the form it lays out: each control of the
// model placed once, everything inside the margins, nothing on top of anything else but a frame
// round what it holds, one control per access key, Tab order in reading order, and each label's
// access key reaching the control it names.

#include <vector>

#include "dialogs/layout.h"

namespace quillet::dialogs {

// The broken rules, one text each; empty when the layout keeps them all.
std::vector<Str> LayoutProblems(const FormLayout& layout, Form& form);

// True when q comes after p in reading order: to its right in the same row (their heights
// overlap), else wholly below it.
bool readsBefore(const DluRect& p, const DluRect& q);

}  // namespace quillet::dialogs
