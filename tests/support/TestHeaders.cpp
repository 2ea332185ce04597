// The precompiled headers of the tests belong to a target, which needs a source.
