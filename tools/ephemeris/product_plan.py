"""Plans how the phasors exp(i theta) of many thetas are made of those of a few angles.

A theta is a tuple of multiples of the angles. Each phasor is the product of two that stand before
it in one list. The list begins with 1 and the phasors of the single angles, each followed by its
conjugate; then come products that serve as factors only, as few as can be had; then the thetas or
their opposites, first those that are made as exactly as the factors, then those that are not.
"""

ANGLES = 13
SUN_ANOMALY = 1
NOTHING = (0,) * ANGLES
CANDIDATES = 40  # among which a factor is chosen


def opposite(theta):
    return tuple(-k for k in theta)


def difference(a, b):
    return tuple(i - j for i, j in zip(a, b))


def size(theta):
    return sum(map(abs, theta))


def single_angles():
    for angle in range(ANGLES):
        theta = tuple(int(i == angle) for i in range(ANGLES))
        yield theta
        yield opposite(theta)


def agree(a, b):
    """Whether the product of two phasors has the power of the eccentricity that it must: that of
    the Sun's anomaly is the absolute value of its multiple."""
    return a[SUN_ANOMALY] * b[SUN_ANOMALY] >= 0


class Plan:
    """Of thetas in groups, whose order stays; within a group it is changed. Each of the groups
    comes with whether it is made exactly; those that are come first."""

    def __init__(self, groups):
        self.angles = [NOTHING, *single_angles()]
        self.factor_depths = {angle: 0 for angle in self.angles}  # inexact products on the way
        self.depths = dict(self.factor_depths)                    # of factors and thetas
        self.factors = []  # (theta, left, right)
        self.thetas = []
        for exact, group in groups:
            self.add_group(group, exact)

    def steps(self):
        """The places of both parts in the list, and the theta, of each product."""
        places = {theta: place for place, theta in enumerate(self.angles)}
        for place, (theta, left, right) in enumerate(self.factors + self.thetas, len(self.angles)):
            yield places[left], places[right], theta
            places[theta] = place

    def add_group(self, group, exact):
        waiting = list(group)
        while waiting:
            left_over = [theta for theta in waiting if not self.add_theta(theta, exact)]
            if len(left_over) == len(waiting):
                for factor in self.useful_factors(waiting):
                    self.add_factor(factor)
            waiting = left_over

    def add_theta(self, theta, exact):
        for wanted in (theta, opposite(theta)):
            parts = self.parts(self.depths, wanted)
            if parts:
                self.thetas.append((wanted, *parts))
                depth = 0 if exact else 1 + max(self.depths[part] for part in parts)
                self.depths.setdefault(wanted, depth)
                return True
        return False

    def add_factor(self, theta):
        if theta in self.factor_depths:
            return
        parts = self.parts(self.factor_depths, theta)
        if not parts:
            parts = obvious_parts(theta)
            for part in parts:
                self.add_factor(part)
        self.factors.append((theta, *parts))
        self.factor_depths[theta] = self.depths[theta] = 0

    @staticmethod
    def parts(depths, theta):
        """Two thetas that are made already and have this sum, the least deep ones; or None."""
        best = None
        least = len(depths)
        for part, depth in depths.items():
            if depth < least:
                rest = difference(theta, part)
                if depths.get(rest, least) < least and agree(part, rest):
                    best = part, rest
                    least = max(depth, depths[rest])
                    if least == 0:
                        break
        return best

    def useful_factors(self, waiting):
        """Of what is lacking for the first one, and takes one product, what most of them lack."""
        candidates = []
        for part in sorted(set(self.lacking_for(waiting[0])), key=lambda part: (size(part), part)):
            if len(candidates) < CANDIDATES and self.parts(self.factor_depths, part):
                candidates.append(part)
        if not candidates:
            return obvious_parts(waiting[0])
        return [max(candidates, key=lambda part: sum(self.completes(part, theta)
                                                     for theta in waiting))]

    def lacking_for(self, theta):
        for wanted in (theta, opposite(theta)):
            for part in self.depths:
                rest = difference(wanted, part)
                if agree(part, rest):
                    yield rest

    def completes(self, part, theta):
        rests = (difference(wanted, part) for wanted in (theta, opposite(theta)))
        return any(rest in self.depths and agree(part, rest) for rest in rests)


def obvious_parts(theta):
    """The last angle and those before; of a single angle two halves."""
    last = max(angle for angle in range(ANGLES) if theta[angle] != 0)
    part = tuple(theta[angle] if angle == last else 0 for angle in range(ANGLES))
    if part == theta:
        part = tuple(int(k / 2) for k in theta)
    return part, difference(theta, part)
