// The functions of the package, on NumPy arrays. Written to the C API: a call costs a third of one by
// pybind11.
#define XFM_PYTHON_MODULE
#include "numpy_api.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "batches.h"
#include "dct4.h"

namespace {

struct Arguments {
  PyObject* a = nullptr;
  PyObject* n = nullptr;
  PyObject* axis = nullptr;
  PyObject* norm = nullptr;
  PyObject* out = nullptr;
};

constexpr struct {
  const char* name;
  PyObject* Arguments::*field;
} parameters[] = {{"a", &Arguments::a},
                  {"n", &Arguments::n},
                  {"axis", &Arguments::axis},
                  {"norm", &Arguments::norm},
                  {"out", &Arguments::out}};

// None stands for an argument that is not given.
bool read_arguments(const Family& family, PyObject* const* given, Py_ssize_t positional, PyObject* keywords,
                    Arguments& arguments) {
  if (positional > static_cast<Py_ssize_t>(std::size(parameters)))
    return PyErr_Format(PyExc_TypeError, "%s() takes at most %zd arguments", family.name,
                        std::size(parameters)) != nullptr;
  for (Py_ssize_t i = 0; i < positional; ++i) arguments.*parameters[i].field = given[i];

  const Py_ssize_t named = keywords ? PyTuple_GET_SIZE(keywords) : 0;
  for (Py_ssize_t i = 0; i < named; ++i) {
    PyObject* name = PyTuple_GET_ITEM(keywords, i);
    const auto parameter = std::find_if(std::begin(parameters), std::end(parameters), [&](const auto& p) {
      return PyUnicode_CompareWithASCIIString(name, p.name) == 0;
    });
    if (parameter == std::end(parameters))
      return PyErr_Format(PyExc_TypeError, "%s() has no argument %R", family.name, name) != nullptr;
    if (arguments.*parameter->field)
      return PyErr_Format(PyExc_TypeError, "%s() got two values for argument %R", family.name, name) !=
             nullptr;
    arguments.*parameter->field = given[positional + i];
  }
  if (!arguments.a) return PyErr_Format(PyExc_TypeError, "%s() needs an array", family.name) != nullptr;
  for (auto field : {&Arguments::n, &Arguments::axis, &Arguments::norm, &Arguments::out})
    if (arguments.*field == Py_None) arguments.*field = nullptr;
  return true;
}

bool read_norm(PyObject* norm, int& index) {
  constexpr const char* names[] = {"backward", "ortho", "forward"};
  index = 0;
  if (!norm) return true;
  if (PyUnicode_Check(norm))
    for (; index < 3; ++index)
      if (PyUnicode_CompareWithASCIIString(norm, names[index]) == 0) return true;
  PyErr_Format(PyExc_ValueError, "norm is %R, not \"backward\", \"ortho\" or \"forward\"", norm);
  return false;
}

bool read_axis(PyObject* given, int dimensions, int& axis) {
  axis = given ? PyArray_PyIntAsInt(given) : -1;
  if (axis == -1 && PyErr_Occurred()) return false;
  if (axis < -dimensions || axis >= dimensions) {
    PyErr_Format(PyExc_ValueError, "axis %d is out of bounds for an array of dimension %d", axis, dimensions);
    return false;
  }
  if (axis < 0) axis += dimensions;
  return true;
}

// float16 is computed in single precision, integers and truth values in double precision.
bool read_precision(const Family& family, PyArrayObject* array, Precision& precision) {
  const bool real_only = family.kind == Kind::real_to_half || family.kind == Kind::real_to_real;
  const int type = PyArray_TYPE(array);
  precision =
      type == NPY_FLOAT || type == NPY_CFLOAT || type == NPY_HALF ? Precision::single : Precision::doubled;
  const bool known = precision == Precision::single || type == NPY_DOUBLE || type == NPY_CDOUBLE ||
                     PyTypeNum_ISINTEGER(type) || PyTypeNum_ISBOOL(type);
  if (known && !(real_only && PyTypeNum_ISCOMPLEX(type))) return true;
  PyErr_Format(PyExc_TypeError, "xfm.%s: %s, not %S", family.name,
               real_only ? "real numbers are served in single and double precision"
                         : "numbers are served in single and double precision",
               reinterpret_cast<PyObject*>(PyArray_DESCR(array)));
  return false;
}

Side side_of(bool complex, bool half, Precision precision) {
  const bool single = precision == Precision::single;
  const npy_intp real = single ? sizeof(float) : sizeof(double);
  return {.type = complex ? (single ? NPY_CFLOAT : NPY_CDOUBLE) : (single ? NPY_FLOAT : NPY_DOUBLE),
          .unit = complex && !half ? 2 * real : real,
          .half = half};
}

/// A transform whose arguments are read.
struct Task {
  explicit Task(const Family& chosen) : family(chosen) {}

  const Family& family;
  Precision precision{};
  int axis = 0, norm = 0;
  npy_intp length = 0;
  Side src_side{}, dst_side{};
  npy_intp src_length = 0, dst_length = 0;
  npy_intp shape[NPY_MAXDIMS];  ///< of the result
};

bool read_task(const Arguments& arguments, PyArrayObject* array, Task& task) {
  const Kind kind = task.family.kind;
  if (!read_axis(arguments.axis, PyArray_NDIM(array), task.axis) || !read_norm(arguments.norm, task.norm) ||
      !read_precision(task.family, array, task.precision))
    return false;

  const npy_intp present = PyArray_DIM(array, task.axis);
  task.length = kind == Kind::half_to_real ? 2 * (present - 1) : present;
  if (arguments.n) {
    task.length = PyNumber_AsSsize_t(arguments.n, PyExc_OverflowError);
    if (task.length == -1 && PyErr_Occurred()) return false;
  }
  if (!task.family.served(task.length, task.precision)) {
    PyErr_Format(PyExc_ValueError, "xfm.%s does not serve length %zd; the lengths served are %s",
                 task.family.name, task.length, task.family.lengths);
    return false;
  }
  const bool complex = kind == Kind::complex_to_complex;
  const bool from_half = kind == Kind::half_to_real, to_half = kind == Kind::real_to_half;
  task.src_side = side_of(complex || from_half, from_half, task.precision);
  task.dst_side = side_of(complex || to_half, to_half, task.precision);
  task.src_length = from_half ? task.length / 2 + 1 : task.length;
  task.dst_length = to_half ? task.length / 2 + 1 : task.length;
  std::copy_n(PyArray_DIMS(array), PyArray_NDIM(array), task.shape);
  task.shape[task.axis] = task.dst_length;
  return true;
}

// The array itself, a view of its beginning, or a copy.
Array prepare_source(Array array, const Task& task) {
  const npy_intp present = PyArray_DIM(array.get(), task.axis);
  if (present < task.src_length || !fits(array.get(), task.axis, task.src_side))
    return copy_of_length(array.get(), task.axis, task.src_length, task.src_side);
  return present == task.src_length ? std::move(array)
                                    : first_elements(array.get(), task.axis, task.src_length);
}

bool check_out(PyObject* object, const Task& task, int dimensions) {
  if (!PyArray_Check(object)) {
    PyErr_SetString(PyExc_TypeError, "out is not an array");
    return false;
  }
  auto* out = reinterpret_cast<PyArrayObject*>(object);
  if (PyArray_TYPE(out) != task.dst_side.type) {
    const Owned<PyObject> wanted(reinterpret_cast<PyObject*>(PyArray_DescrFromType(task.dst_side.type)));
    PyErr_Format(PyExc_TypeError, "out has the type %S, not %S",
                 reinterpret_cast<PyObject*>(PyArray_DESCR(out)), wanted.get());
    return false;
  }
  if (PyArray_NDIM(out) != dimensions || !PyArray_CompareLists(PyArray_DIMS(out), task.shape, dimensions)) {
    const Owned<PyObject> wanted(PyArray_IntTupleFromIntp(dimensions, task.shape));
    const Owned<PyObject> shape(PyObject_GetAttrString(object, "shape"));
    if (wanted && shape)
      PyErr_Format(PyExc_ValueError, "out has the shape %S, not %S", shape.get(), wanted.get());
    return false;
  }
  return PyArray_FailUnlessWriteable(out, "out") == 0;
}

/// What a family needs while it runs, held until the call ends.
class Work {
 public:
  Work(const Task& task, bool rows)
      : dct4_(&task.family == &families[DCT4]),
        precision_(task.precision),
        length_(static_cast<std::int32_t>(task.length)) {
    if (&task.family == &families[WHT]) {
      ready_ = make_wht_buffer();
    } else if (dct4_) {
      ready_ = precision_ == Precision::single ? make_dct4(single_, rows) : make_dct4(double_, rows);
    }
  }
  ~Work() {
    std::free(memory_);
    if (single_.state) give_back_dct4_state<float>(single_.state, length_);
    if (double_.state) give_back_dct4_state<double>(double_.state, length_);
  }
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;

  bool ready() const { return ready_; }
  void* get() {
    if (!dct4_) return memory_;
    return precision_ == Precision::single ? static_cast<void*>(&single_) : &double_;
  }

 private:
  bool make_wht_buffer() {
    std::uint32_t size = 0;
    const std::int32_t order = wht_order(length_);
    (precision_ == Precision::single ? xfmWHTGetBufferSize_32f : xfmWHTGetBufferSize_64f)(order, &size);
    if (size == 0) return true;
    memory_ = std::aligned_alloc(64, (size + 63) / 64 * 64);
    return memory_ != nullptr;
  }

  template <class T>
  bool make_dct4(Dct4Work<T>& work, bool rows) {
    if (rows) {
      memory_ = std::malloc(static_cast<std::size_t>(length_) * sizeof(T));
      if (!memory_) return false;
    }
    work.row = static_cast<T*>(memory_);
    work.state = take_dct4_state<T>(length_);
    return work.state != nullptr;
  }

  bool dct4_, ready_ = true;
  Precision precision_;
  std::int32_t length_;
  void* memory_ = nullptr;
  Dct4Work<float> single_;
  Dct4Work<double> double_;
};

bool run(const Task& task, PyArrayObject* src, PyArrayObject* dst) {
  const bool rows = PyArray_STRIDE(src, task.axis) != task.src_side.unit ||
                    PyArray_STRIDE(dst, task.axis) != task.dst_side.unit;
  Work work(task, rows);
  if (!work.ready()) {
    PyErr_NoMemory();
    return false;
  }
  const xfmStatus status =
      run_batches(task.family, task.precision, src, task.src_side, dst, task.dst_side, task.axis,
                  static_cast<std::int32_t>(task.length), task.family.by_norm[task.norm], work.get());
  if (status == xfmStsOk) return true;
  PyErr_Format(PyExc_RuntimeError, "xfm.%s: the library returned the status %d", task.family.name, status);
  return false;
}

// Results go to `out` itself if it suits the library and the input is not in the way, and by a new array
// otherwise.
PyObject* transform_into(const Task& task, Array src, PyObject* object) {
  if (!check_out(object, task, PyArray_NDIM(src.get()))) return nullptr;
  Array out = Array::sharing(reinterpret_cast<PyArrayObject*>(object));
  const bool direct = fits(out.get(), task.axis, task.dst_side) &&
                      (!may_overlap(src.get(), out.get()) ||
                       in_place(src.get(), task.src_side, out.get(), task.dst_side, task.axis));
  if (direct) return run(task, src.get(), out.get()) ? reinterpret_cast<PyObject*>(out.release()) : nullptr;

  const Array result = make_array(task.dst_side, task.shape, src.get(), task.axis);
  if (!result || !run(task, src.get(), result.get()) || PyArray_CopyInto(out.get(), result.get()) < 0)
    return nullptr;
  return reinterpret_cast<PyObject*>(out.release());
}

PyObject* transform(const Family& family, PyObject* const* given, Py_ssize_t positional, PyObject* keywords) {
  Arguments arguments;
  if (!read_arguments(family, given, positional, keywords, arguments)) return nullptr;
  Array array(PyArray_FROM_OF(arguments.a, NPY_ARRAY_ENSUREARRAY));
  if (!array) return nullptr;
  Task task(family);
  if (!read_task(arguments, array.get(), task)) return nullptr;
  Array src = prepare_source(std::move(array), task);
  if (!src) return nullptr;
  if (arguments.out) return transform_into(task, std::move(src), arguments.out);
  Array dst = make_array(task.dst_side, task.shape, src.get(), task.axis);
  if (!dst || !run(task, src.get(), dst.get())) return nullptr;
  return reinterpret_cast<PyObject*>(dst.release());
}

template <int family>
PyObject* method(PyObject*, PyObject* const* given, Py_ssize_t positional, PyObject* keywords) {
  return transform(families[family], given, positional, keywords);
}

// Python casts the function back, as the flags say.
template <int family>
PyMethodDef row(const char* text) {
  return {families[family].name, reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(method<family>)),
          METH_FASTCALL | METH_KEYWORDS, text};
}

#define SIGNATURE "(a, n=None, axis=-1, norm=None, out=None)\n--\n\n"
#define SERVED_DFT "Lengths 2 to 64 are served, others raise ValueError.\n"
#define ARGUMENTS                                                                                       \
  "\n"                                                                                                  \
  "n     length of the transform: longer input is cut off, shorter input padded with zeros\n"           \
  "axis  dimension along which to transform\n"                                                          \
  "norm  \"backward\" (the default), \"ortho\" or \"forward\", as in numpy.fft\n"                       \
  "out   array for the result, which may be the input; it must have the shape and type of the result\n" \
  "\n"                                                                                                  \
  "Single precision stays single. float16 becomes float32, integers become float64."

PyMethodDef methods[] = {
    row<FFT>("fft" SIGNATURE "Complex DFT, as numpy.fft.fft.\n\n" SERVED_DFT ARGUMENTS),
    row<IFFT>("ifft" SIGNATURE "Inverse complex DFT, as numpy.fft.ifft.\n\n" SERVED_DFT ARGUMENTS),
    row<RFFT>("rfft" SIGNATURE
              "DFT of real input: the n//2 + 1 bins of the half spectrum, as numpy.fft.rfft.\n\n"
              "In the memory of a new result the bins of a transform are neighbours.\n" SERVED_DFT ARGUMENTS),
    row<IRFFT>("irfft" SIGNATURE "Real output of a half spectrum, as numpy.fft.irfft.\n\n"
               "n is the length of the output, 2*(bins - 1) unless given. The imaginary parts of bin 0 and, "
               "for even\n"
               "n, of bin n/2 are not read.\n" SERVED_DFT ARGUMENTS),
    row<HARTLEY>(
        "hartley" SIGNATURE
        "Hartley transform: sum over j of a[j] * (cos(2 pi j k / n) + sin(2 pi j k / n)).\n\n"
        "It is its own inverse up to the factor n: norm=\"forward\" undoes norm=\"backward\".\n" SERVED_DFT
            ARGUMENTS),
    row<WHT>("wht" SIGNATURE "Walsh-Hadamard transform in natural (Hadamard) order.\n\n"
             "It is its own inverse up to the factor n: norm=\"forward\" undoes norm=\"backward\".\n"
             "Lengths 2**1 to 2**13 are served, others raise ValueError.\n" ARGUMENTS),
    row<DCT4>("dct4" SIGNATURE "DCT-IV: sum over j of a[j] * cos(pi/n * (j + 1/2) * (k + 1/2)).\n\n"
              "That is half of scipy.fft.dct(a, type=4), but equal to it if norm=\"ortho\". It is its own "
              "inverse up to\n"
              "the factor n/2: norm=\"forward\", which is 2/n, undoes norm=\"backward\", and \"ortho\" is "
              "sqrt(2/n).\n"
              "The powers of two from 2 to 2**26, in double precision to 2**25, are served, others raise "
              "ValueError.\n" ARGUMENTS),
    {nullptr, nullptr, 0, nullptr}};

PyModuleDef module = {PyModuleDef_HEAD_INIT,
                      "xfm._xfm",
                      "The functions of the package xfm.",
                      -1,
                      methods,
                      nullptr,
                      nullptr,
                      nullptr,
                      nullptr};

constexpr struct {
  const char* name;
  long value;
} constants[] = {{"DFT_MIN_LENGTH", XFM_DFT_MIN_LENGTH},
                 {"DFT_MAX_LENGTH", XFM_DFT_MAX_LENGTH},
                 {"WHT_MIN_ORDER", XFM_WHT_MIN_ORDER},
                 {"WHT_MAX_ORDER", XFM_WHT_MAX_ORDER},
                 {"DCT4_MIN_LENGTH", XFM_DCT4_MIN_LENGTH},
                 {"DCT4_MAX_LENGTH_32F", XFM_DCT4_MAX_LENGTH_32F},
                 {"DCT4_MAX_LENGTH_64F", XFM_DCT4_MAX_LENGTH_64F},
                 {"VERSION_MAJOR", XFM_VERSION_MAJOR},
                 {"VERSION_MINOR", XFM_VERSION_MINOR}};

}  // namespace

PyMODINIT_FUNC PyInit__xfm() {
  import_array();
  Owned<PyObject> made(PyModule_Create(&module));
  if (!made) return nullptr;
  for (const auto& [name, value] : constants)
    if (PyModule_AddIntConstant(made.get(), name, value) < 0) return nullptr;
  return made.release();
}
