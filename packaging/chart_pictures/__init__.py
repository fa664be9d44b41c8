"""The pictures of the tooth chart, drawn from measures."""
