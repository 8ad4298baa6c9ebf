"""Pictures of every window in every state: taken, kept, and compared."""
