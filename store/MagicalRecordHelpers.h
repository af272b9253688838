#pragma once

/// What the quit sequence asks of the layer that keeps the default store coordinator.
class MagicalRecordHelpers
{
public:
    /// Forgets the default coordinator: no more contexts are made on it.
    static void cleanUp();
};
