#include <cmath>
#include <proj.h>
#include <string_view>
#include <utility>

#include "platform/Error.h"
#include "platform/zvcom/ProjUnits.h"
#include "platform/zvcom/ZvUtilLLdrv.h"

namespace zv {
namespace {

struct PjDeleter {
    void operator()(PJ* object) const { proj_destroy(object); }
};
using PjPtr = std::unique_ptr<PJ, PjDeleter>;

/// A PROJ context that keeps the library's last complaint instead of printing it.
class Context {
  public:
    Context() : m_context(proj_context_create()) {
        proj_log_level(m_context, PJ_LOG_ERROR);
        proj_log_func(m_context, &m_complaint, [](void* complaint, int, const char* text) {
            *static_cast<std::string*>(complaint) = text;
        });
    }
    ~Context() { proj_context_destroy(m_context); }
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    PJ_CONTEXT* Get() const { return m_context; }

    /// Throws what PROJ has to say against a definition.
    [[noreturn]] void Refuse(const std::string& definition) const {
        throw DataError("", "projection \"" + definition + "\"", Reason());
    }

  private:
    std::string Reason() const {
        if (!m_complaint.empty()) {
            return m_complaint;
        }
        const int number = proj_context_errno(m_context);
        const char* known = number ? proj_context_errno_string(m_context, number) : nullptr;
        return known ? known : "not a coordinate system";
    }

    PJ_CONTEXT* m_context;
    std::string m_complaint;
};

/// A PROJ string names an operation unless it says that it means a coordinate system.
std::string AsSystem(const std::string& definition) {
    const bool isProjString = definition.starts_with("+") || definition.starts_with("proj=");
    const bool saysType = definition.find("type=crs") != std::string::npos;
    return isProjString && !saysType ? definition + " +type=crs" : definition;
}

PjPtr ReadSystem(const Context& context, const std::string& definition) {
    PjPtr system(proj_create(context.Get(), AsSystem(definition).c_str()));
    if (!system || !proj_is_crs(system.get())) {
        context.Refuse(definition);
    }
    return system;
}

/// The system itself under a horizontal and vertical pair, or under a given datum shift.
PjPtr Horizontal(const Context& context, PjPtr system) {
    for (;;) {
        switch (proj_get_type(system.get())) {
        case PJ_TYPE_BOUND_CRS:
            system.reset(proj_get_source_crs(context.Get(), system.get()));
            break;
        case PJ_TYPE_COMPOUND_CRS:
            system.reset(proj_crs_get_sub_crs(context.Get(), system.get(), 0));
            break;
        default: return system;
        }
        if (!system) {
            return system;
        }
    }
}

} // namespace

struct Projection::Impl {
    Context context;
    PjPtr operation;

    bool Transform(PJ_DIRECTION direction, double& x, double& y) const {
        if (!std::isfinite(x) || !std::isfinite(y)) {
            return false;
        }
        proj_errno_reset(operation.get());
        const PJ_COORD image =
            proj_trans(operation.get(), direction, proj_coord(x, y, 0, HUGE_VAL));
        if (!std::isfinite(image.xy.x) || !std::isfinite(image.xy.y)) {
            return false;
        }
        x = image.xy.x, y = image.xy.y;
        return true;
    }
};

Projection::Projection(const std::string& from, const std::string& to)
    : m_impl(std::make_unique<Impl>()) {
    const Context& context = m_impl->context;
    const PjPtr source = ReadSystem(context, from);
    const PjPtr target = ReadSystem(context, to);
    const PjPtr asPrescribed(proj_create_crs_to_crs_from_pj(context.Get(), source.get(),
                                                            target.get(), nullptr, nullptr));
    if (!asPrescribed) {
        context.Refuse(from + "\" to \"" + to);
    }
    m_impl->operation.reset(proj_normalize_for_visualization(context.Get(), asPrescribed.get()));
    if (!m_impl->operation) {
        context.Refuse(from + "\" to \"" + to);
    }
}

Projection::~Projection() = default;
Projection::Projection(Projection&&) noexcept = default;
Projection& Projection::operator=(Projection&&) noexcept = default;

bool Projection::Forward(double& x, double& y) const {
    return m_impl->Transform(PJ_FWD, x, y);
}

bool Projection::Back(double& x, double& y) const {
    return m_impl->Transform(PJ_INV, x, y);
}

double MetresPerUnit(const std::string& definition) {
    const Context context;
    const PjPtr system = Horizontal(context, ReadSystem(context, definition));
    if (!system || proj_get_type(system.get()) != PJ_TYPE_PROJECTED_CRS) {
        return 0.0;
    }
    const PjPtr axes(proj_crs_get_coordinate_system(context.Get(), system.get()));
    double metres = 0.0;
    const bool known = axes && proj_cs_get_axis_info(context.Get(), axes.get(), 0, nullptr, nullptr,
                                                     nullptr, &metres, nullptr, nullptr, nullptr);
    return known ? metres : 0.0;
}

} // namespace zv
