#pragma once

/// Exports a symbol; everything else has hidden visibility. The argument types of an exported
/// template instance need it too: g++ silently hides an instance with a hidden argument.
#define QV_EXPORT __attribute__((visibility("default")))
