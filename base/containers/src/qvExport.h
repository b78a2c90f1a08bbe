#pragma once

/// Marks what a library or module shows to others: everything is built with hidden visibility.
/// A type also needs the mark when it is an argument of an exported template instance; g++ drops
/// such an instance from the exports without a word when one of its arguments is hidden.
#define QV_EXPORT __attribute__((visibility("default")))
