"""The library's own interface (placeholder until written)."""
