-- Ports of a user's own, by their positions in degrees.
CREATE TABLE own_places (
    owner TEXT COLLATE "C" NOT NULL REFERENCES own_lists (owner),
    ppi TEXT COLLATE "C" NOT NULL,
    ppn TEXT COLLATE "C" NOT NULL,
    xc DOUBLE PRECISION NOT NULL,
    yc DOUBLE PRECISION NOT NULL,
    PRIMARY KEY (owner, ppi)
);
