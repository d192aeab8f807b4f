// Files with something wrong in them, by number: the same number gives the same bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

std::vector<uint8_t> fileOf(const std::string &path);
std::vector<uint8_t> mutated(const std::vector<uint8_t> &file, unsigned number);

// Reads the file as a loader does before it touches the language runtime. Returns what is wrong with it,
// which begins with a place, or nothing. Holds what was read against the file: every address has to lie in
// it.
std::string readWhole(const std::vector<uint8_t> &file);
