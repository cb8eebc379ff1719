"""A Dask cluster of unlike workers, one on the portable layer and one on the best: the same bits from both."""

import logging

import lumvm
import pytest
from conftest import functions, same_bits

distributed = pytest.importorskip("distributed")
array = pytest.importorskip("dask.array")


@pytest.fixture(scope="module")
def workers():
    """A client and the addresses of a worker on the portable layer and of one on the best."""
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None,
                                  silence_logs=logging.ERROR) as cluster, distributed.Client(cluster) as client:
        portable, best = client.scheduler_info()["workers"]
        client.run(lumvm.set_layer, "portable", workers=[portable])
        yield client, portable, best


def test_workers_run_different_layers(workers):
    client, portable, best = workers
    assert client.run(lumvm.layer) == {portable: "portable", best: lumvm.layer()}


@pytest.mark.parametrize("level", ["high", "low"])
def test_workers_agree(workers, level):
    client, portable, best = workers
    x = array.linspace(-30, 30, 20001, chunks=15000)
    results = {name: ufunc(x) for name, ufunc in functions(level).items()
               if ufunc.nin == ufunc.nout == 1 and "d->d" in ufunc.types}
    assert len(results) > 30
    slow, fast = (client.gather(client.compute(list(results.values()), workers=[worker], allow_other_workers=False, pure=False))
                  for worker in (portable, best))
    for name, one, other in zip(results, slow, fast):
        assert same_bits(one, other), name
