"""Fleets over a Dask cluster."""
