"""Drives Tarvelo from outside, as a student would: through its windows, with mouse and keyboard."""
