#pragma once

/// Puts an object where every room reaches it. At its end the place is empty again, unless the object of another run
/// has taken it by then.
template <class T>
class Reachable {
public:
    Reachable(T*& place, T& object)
        : place_(place)
        , object_(&object) {
        place_ = object_;
    }
    ~Reachable() {
        if (place_ == object_) place_ = nullptr;
    }
    Reachable(const Reachable&) = delete;
    Reachable& operator=(const Reachable&) = delete;

private:
    T*& place_;
    T* object_;
};
