-- Who changes an owner's list holds its row, so that two at once do not bring it beyond its limit.
CREATE TABLE own_lists (
    owner TEXT COLLATE "C" PRIMARY KEY
);

CREATE TABLE fleet (
    owner TEXT COLLATE "C" NOT NULL REFERENCES own_lists (owner),
    vsi TEXT COLLATE "C" NOT NULL,
    vsn TEXT COLLATE "C" NOT NULL,
    vsmsi INTEGER NOT NULL,
    vsimo INTEGER NOT NULL,
    vscs TEXT COLLATE "C" NOT NULL,
    vst TEXT COLLATE "C" NOT NULL,
    vsl DOUBLE PRECISION NOT NULL,
    vsp DOUBLE PRECISION NOT NULL,
    PRIMARY KEY (owner, vsi)
);
