#pragma once
// The add-in's version: Major.Minor.Revision.

namespace quillet::core {

constexpr int kVersionMajor = 0;
constexpr int kVersionMinor = 1;
constexpr int kVersionRevision = 0;

}  // namespace quillet::core
