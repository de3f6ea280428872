"""The samples' records: base.py holds the nine base forms, every other module one procedure."""
