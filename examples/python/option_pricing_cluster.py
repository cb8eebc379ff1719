#!/usr/bin/env python3
"""Prices European options on a Dask cluster: 10^8 contracts by default, on two processes of this machine or on the cluster of a
running scheduler. The prices are checked by put-call parity and, for a sample, against 30 digits; the same job with NumPy and
SciPy is timed beside it.

    option_pricing_cluster.py                                   10^8 contracts, two local processes
    option_pricing_cluster.py --contracts 1e9 --scheduler tcp://HOST:8786
"""

import argparse
import sys
import time

import numpy

BLOCK = 8192  # elements that go through all steps while they are in the processor's second cache
QUANTITIES = ("spot", "strike", "rate", "volatility", "years")


def contracts(seed, count):
    """The contracts of a chunk: the same ones for the same seed, on whatever worker."""
    random = numpy.random.default_rng(seed)
    return (random.uniform(50, 150, count), random.uniform(50, 150, count), random.uniform(0, 0.08, count),
            random.uniform(0.1, 0.6, count), random.uniform(0.1, 3, count))


def price_with_lumvm(level):
    """Call and put prices by a level of lumvm."""
    import lumvm
    f = getattr(lumvm, level)

    def price(spot, strike, rate, volatility, years, call, put):
        deviation = f.multiply(volatility, f.sqrt(years))
        discounted = f.multiply(strike, f.exp(f.multiply(-rate, years)))
        d1 = (f.log(f.divide(spot, strike)) + (rate + 0.5 * volatility * volatility) * years) / deviation
        d2 = d1 - deviation
        call[:] = spot * f.ndtr(d1) - discounted * f.ndtr(d2)
        put[:] = discounted * f.ndtr(-d2) - spot * f.ndtr(-d1)
    return price


def price_with_scipy(spot, strike, rate, volatility, years, call, put):
    from scipy.special import ndtr
    deviation = volatility * numpy.sqrt(years)
    discounted = strike * numpy.exp(-rate * years)
    d1 = (numpy.log(spot / strike) + (rate + 0.5 * volatility * volatility) * years) / deviation
    d2 = d1 - deviation
    call[:] = spot * ndtr(d1) - discounted * ndtr(d2)
    put[:] = discounted * ndtr(-d2) - spot * ndtr(-d1)


def price_chunk(seed, count, how):
    """Sums of the prices of a chunk, the worst violation of parity, and the seconds that the pricing took."""
    values = contracts(seed, count)
    price = price_with_scipy if how == "scipy" else price_with_lumvm(how)
    call, put = numpy.empty(count), numpy.empty(count)
    start = time.perf_counter()
    for first in range(0, count, BLOCK):
        part = slice(first, first + BLOCK)
        price(*(value[part] for value in values), call[part], put[part])
    seconds = time.perf_counter() - start
    spot, strike, rate, _, years = values
    forward = spot - strike * numpy.exp(-rate * years)
    return call.sum(), put.sum(), float(numpy.abs((call - put - forward) / (spot + strike)).max()), seconds


def worst_error(how, count=200):
    """The largest error of a sample of prices, relative to spot and strike, against 30 digits."""
    import mpmath
    mpmath.mp.dps = 30
    values = contracts(1, count)
    call, put = numpy.empty(count), numpy.empty(count)
    (price_with_scipy if how == "scipy" else price_with_lumvm(how))(*values, call, put)
    worst = 0.0
    for i in range(count):
        spot, strike, rate, volatility, years = (mpmath.mpf(float(value[i])) for value in values)
        deviation = volatility * mpmath.sqrt(years)
        discounted = strike * mpmath.exp(-rate * years)
        d1 = (mpmath.log(spot / strike) + (rate + volatility**2 / 2) * years) / deviation
        d2 = d1 - deviation
        exact = (spot * mpmath.ncdf(d1) - discounted * mpmath.ncdf(d2), discounted * mpmath.ncdf(-d2) - spot * mpmath.ncdf(-d1))
        worst = max(worst, *(float(abs(own - right) / (spot + strike)) for own, right in zip((call[i], put[i]), exact)))
    return worst


def run(client, how, total, chunk, quiet):
    from dask.distributed import progress
    counts = [chunk] * (total // chunk) + ([total % chunk] if total % chunk else [])
    start = time.perf_counter()
    futures = client.map(price_chunk, range(len(counts)), counts, how=how, pure=False)
    if not quiet and sys.stderr.isatty():
        progress(futures, notebook=False)
    results = client.gather(futures)
    elapsed = time.perf_counter() - start
    calls, puts, parity, seconds = (numpy.array(column) for column in zip(*results))
    print(f"{how:>6}: {total / elapsed / 1e6:8.2f} million contracts a second, {seconds.sum():7.2f} s of pricing, "
          f"mean call {calls.sum() / total:.10f}, parity within {parity.max():.1e}")
    return float(parity.max()), calls.sum() / total


def number(text):
    value = float(text)
    if not (1 <= value <= 1e12) or value != int(value):
        raise argparse.ArgumentTypeError(f"'{text}' is no whole number from 1 to 1e12")
    return int(value)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--contracts", type=number, default=10**8)
    parser.add_argument("--chunk", type=number, default=10**6, help="contracts of one task")
    parser.add_argument("--scheduler", help="address of a running scheduler; two processes of this machine otherwise")
    parser.add_argument("--levels", nargs="+", default=["high", "low", "scipy"], choices=["high", "mid", "low", "scipy"])
    parser.add_argument("--quiet", action="store_true", help="no progress bar")
    arguments = parser.parse_args()
    from dask.distributed import Client, LocalCluster
    limits = {"high": 4e-15, "mid": 1e-13, "low": 1e-6, "scipy": 4e-14}
    try:
        cluster = arguments.scheduler or LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None)
        client = Client(cluster)
    except OSError as error:
        print(f"option_pricing_cluster: no scheduler at {arguments.scheduler}: {error}", file=sys.stderr)
        return 2
    holds = True
    with client:
        for how in arguments.levels:
            parity, _ = run(client, how, arguments.contracts, arguments.chunk, arguments.quiet)
            error = worst_error(how)
            fine = parity <= limits[how] and error <= limits[how]
            holds = holds and fine
            print(f"        largest error of 200 prices against 30 digits {error:.1e}, limit {limits[how]:.0e}: "
                  f"{'ok' if fine else 'FAILED'}")
    return 0 if holds else 1


if __name__ == "__main__":
    sys.exit(main())
