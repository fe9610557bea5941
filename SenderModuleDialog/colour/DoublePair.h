#ifndef SENDERMODULEDIALOG_COLOUR_DOUBLEPAIR_H
#define SENDERMODULEDIALOG_COLOUR_DOUBLEPAIR_H

#include <cstdint>

/// @file
/// Two doubles that one instruction works on, on every processor that the library is built for. Each element
/// is rounded as a double of its own, so results are the same as without pairs.

using CDoublePair = double __attribute__((vector_size(16)));

/// What a comparison of two pairs gives: all bits set in each element where it holds.
using CBitsPair = std::int64_t __attribute__((vector_size(16)));

#endif // SENDERMODULEDIALOG_COLOUR_DOUBLEPAIR_H
