// Nothing of its own: a precompiled header belongs to a target with a source.
