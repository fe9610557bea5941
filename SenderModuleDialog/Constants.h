#ifndef SENDERMODULEDIALOG_CONSTANTS_H
#define SENDERMODULEDIALOG_CONSTANTS_H

/// @file
/// Two digest placeholders, as long as a 32-character digest text with its terminator. They have internal
/// linkage and no behaviour: this library computes no digest, and nothing may depend on them.

/// The digest of nothing: 33 bytes 0x00.
[[maybe_unused]] static constexpr unsigned char MD5_NULL[33] = {};

/// The digest of a custom file: 33 bytes 0x01.
[[maybe_unused]] static constexpr unsigned char MD5_CUSTOM[33] = {
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

#endif // SENDERMODULEDIALOG_CONSTANTS_H
