#pragma once

/*!
 * Counts the warnings that the library writes while benchmarks run; a correct catalogue loads
 * without any, so a count above 0 means the measurement included the cost of warning.
 */
class PvBenchWarnings
{
public:
    //! Starts counting; the messages are still printed as before.
    static void install();
    //! Warnings and worse since install().
    [[nodiscard]] static int count();
};
