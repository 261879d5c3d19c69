# pyFFTW gives the transforms of numpy.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
ours /usr/bin/python3 "$(dirname "${BASH_SOURCE[0]}")/pyfftw_test.py"
