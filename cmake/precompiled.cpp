// Empty: a target must have a source to carry a precompiled header.
