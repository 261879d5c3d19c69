// The C API of Python and NumPy, whose table of functions module.cpp imports.
#pragma once

#include <Python.h>
#define NPY_NO_DEPRECATED_API NPY_1_20_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL xfm_python_numpy_api
#ifndef XFM_PYTHON_MODULE
#define NO_IMPORT_ARRAY
#endif
#include <numpy/arrayobject.h>

#include <utility>

/// An owned reference, or none.
template <class T>
class Owned {
 public:
  explicit Owned(T* object = nullptr) : object_(object) {}
  explicit Owned(PyObject* object) requires(!std::is_same_v<T, PyObject>)
      : object_(reinterpret_cast<T*>(object)) {}
  Owned(Owned&& other) noexcept : object_(other.release()) {}
  Owned& operator=(Owned&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Owned() { Py_XDECREF(reinterpret_cast<PyObject*>(object_)); }

  static Owned sharing(T* object) {
    Py_INCREF(reinterpret_cast<PyObject*>(object));
    return Owned(object);
  }

  T* get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  T* release() { return std::exchange(object_, nullptr); }

 private:
  T* object_;
};

using Array = Owned<PyArrayObject>;
