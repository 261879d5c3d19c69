"""A plugin of pytest: tests run with xfm as the backend of scipy.fft, and some of their calls must be served by it."""

import collections

import pytest
import scipy.fft

import xfm

_calls = collections.Counter()


class _Counting:
    __ua_domain__ = xfm.scipy_backend.__ua_domain__

    @staticmethod
    def __ua_function__(method, args, kwargs):
        result = xfm.scipy_backend.__ua_function__(method, args, kwargs)
        if result is not NotImplemented:
            _calls[method.__name__] += 1
        return result


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_call(item):
    # Global, so that it holds in the threads that tests start. A global backend takes the place of SciPy's own, which
    # is tried next once it is registered.
    scipy.fft.set_global_backend(_Counting)
    scipy.fft.register_backend("scipy")
    yield
    scipy.fft.set_global_backend("scipy")


def pytest_terminal_summary(terminalreporter):
    terminalreporter.write_line(f"served by xfm: {dict(sorted(_calls.items()))}")


@pytest.hookimpl(trylast=True)
def pytest_sessionfinish(session):
    expected = {"fft", "ifft", "rfft", "irfft", "fft2", "ifft2", "dct", "idct"}
    if session.testscollected and not expected <= set(_calls):
        print(f"\nnever served by xfm: {sorted(expected - set(_calls))}")
        session.exitstatus = 1
