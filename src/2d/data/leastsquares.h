#pragma once

#include <array>
#include <cstddef>

/// A polynomial in (x - centre) / scale, the constant first.
template<std::size_t Degree>
struct Polynomial
{
    double centre = 0.0;
    double scale = 1.0;
    std::array<double, Degree + 1> factors{};

    double operator()(double x) const
    {
        const double u = (x - centre) / scale;
        double value = 0.0;
        for (auto factor = factors.rbegin(); factor != factors.rend(); ++factor)
            value = value * u + *factor;
        return value;
    }
};

/// Fits a polynomial to points by least squares, through the normal equations. \a centre and
/// \a scale bring the points to about -1 to 1, where these are well conditioned.
template<std::size_t Degree>
class LeastSquares
{
public:
    LeastSquares(double centre, double scale)
        : m_centre(centre)
        , m_scale(scale > 0.0 ? scale : 1.0)
    {}

    void add(double x, double y)
    {
        const double u = (x - m_centre) / m_scale;
        double power = 1.0;
        for (std::size_t i = 0; i < m_moments.size(); ++i, power *= u) {
            m_moments[i] += power;
            if (i <= Degree)
                m_sums[i] += power * y;
        }
    }

    /// Terms that the points cannot tell are 0.
    Polynomial<Degree> solved() const;

private:
    static constexpr std::size_t size = Degree + 1;

    double m_centre;
    double m_scale;
    std::array<double, 2 * Degree + 1> m_moments{};
    std::array<double, size> m_sums{};
};

template<std::size_t Degree>
Polynomial<Degree> LeastSquares<Degree>::solved() const
{
    std::array<std::array<double, size + 1>, size> rows{};
    for (std::size_t i = 0; i < size; ++i) {
        for (std::size_t j = 0; j < size; ++j)
            rows[i][j] = m_moments[i + j];
        rows[i][size] = m_sums[i];
    }
    Polynomial<Degree> result{m_centre, m_scale, {}};
    // Gauss and Jordan; the matrix is symmetric and positive, so the diagonal serves as pivot.
    for (std::size_t i = 0; i < size; ++i) {
        const double pivot = rows[i][i];
        const bool usable = pivot > 1e-12 * m_moments[0];
        for (std::size_t k = 0; k < size; ++k) {
            if (k == i || !usable)
                continue;
            const double factor = rows[k][i] / pivot;
            for (std::size_t j = i; j <= size; ++j)
                rows[k][j] -= factor * rows[i][j];
        }
    }
    for (std::size_t i = 0; i < size; ++i) {
        if (rows[i][i] > 1e-12 * m_moments[0])
            result.factors[i] = rows[i][size] / rows[i][i];
    }
    return result;
}
