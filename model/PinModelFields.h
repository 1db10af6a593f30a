#pragma once
// What an IBIS model (or the pin mapping) gives a pin. Most pins of a big board belong to
// parts without a model, so a pin keeps these fields apart and makes them only when one is
// written: a pin without them costs one pointer instead of a dozen empty texts.
#include <memory>
#include <string>
#include <vector>

struct PinModelFields {
    std::string modelNameAsRead;  // the model name as the mapping first gave it
    std::string modelName;
    std::string modelType;
    std::string signalName;
    std::string ioNode;
    std::string pullupRef, pulldownRef, powerClampRef, gndClampRef;
    std::string powerGroup, groundGroup;
    std::vector<std::string> nodeNames;
};

// Holds a pin's PinModelFields once something writes one, none before. Reading gives the
// empty fields without making a record; copies are deep, so a copied pin never shares its
// fields with the pin it came from.
class PinModelHolder {
  public:
    PinModelHolder() = default;
    PinModelHolder(const PinModelHolder& other)
        : fields_(other.fields_ ? std::make_unique<PinModelFields>(*other.fields_) : nullptr) {}
    PinModelHolder(PinModelHolder&&) noexcept = default;
    PinModelHolder& operator=(const PinModelHolder& other) {
        if (this != &other) PinModelHolder(other).fields_.swap(fields_);
        return *this;
    }
    PinModelHolder& operator=(PinModelHolder&&) noexcept = default;
    ~PinModelHolder() = default;

    // The fields, or the shared empty ones when none were written.
    const PinModelFields& Get() const { return fields_ ? *fields_ : Empty(); }
    // The fields to write, made empty on first use.
    PinModelFields& Edit() {
        if (!fields_) fields_ = std::make_unique<PinModelFields>();
        return *fields_;
    }
    bool HasFields() const { return fields_ != nullptr; }

  private:
    static const PinModelFields& Empty() {
        static const PinModelFields empty;
        return empty;
    }
    std::unique_ptr<PinModelFields> fields_;
};
