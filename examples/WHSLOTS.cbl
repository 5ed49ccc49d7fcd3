      *****************************************************************
      * WHSLOTS  Warehouse: slot map, stock by slot, picking waves.
      *
      * Keeps the map of the house (zones, aisles, bays) in storage,
      * answers where an article lies and builds a pick list for a
      * wave of orders, nearest bay first.
      *****************************************************************
       IDENTIFICATION DIVISION.
       PROGRAM-ID. WHSLOTS.
       DATA DIVISION.
       WORKING-STORAGE SECTION.
       77  WS-ZONE-MAX                 PIC 9(02) COMP VALUE 6.
       77  WS-LINE-MAX                 PIC 9(03) COMP-3 VALUE 200.

      * The map: zones of aisles of bays, 6 x 8 x 20.
       01  SLOT-MAP.
           05  SM-HOUSE                PIC X(04).
               88  SM-MAIN-HOUSE       VALUE "W001".
               88  SM-OUTSIDE-HOUSE    VALUE "X000" THRU "X999".
           05  SM-AS-OF                PIC 9(08).
           05  SM-ZONE                 OCCURS 6 TIMES
                                       INDEXED BY ZONE-IX.
               10  SM-ZONE-CODE        PIC X(02).
                   88  SM-ZONE-COLD    VALUE "C1" "C2".
                   88  SM-ZONE-HAZARD  VALUE "H1" THRU "H9".
                   88  SM-ZONE-DRY     VALUE "D1" THRU "D9"
                                             "S1".
               10  SM-ZONE-TEMP        PIC S9(02)V9
                                       SIGN LEADING SEPARATE.
                   88  SM-DEEP-FROZEN  VALUE -30.0 THRU -18.0.
                   88  SM-CHILLED      VALUE 2.0 THRU 8.0.
               10  SM-AISLE            OCCURS 8 TIMES
                                       INDEXED BY AISLE-IX.
                   15  SM-AISLE-NO     PIC 9(02).
                   15  SM-AISLE-WAY    PIC 9(01).
                       88  SM-ONE-WAY  VALUE 1.
                       88  SM-TWO-WAY  VALUE 2.
                       88  SM-CLOSED   VALUE 0 9.
                   15  SM-BAY          OCCURS 20 TIMES
                                       INDEXED BY BAY-IX.
                       20  SM-BAY-NO   PIC 9(03).
                       20  SM-STATE    PIC X(01).
                           88  SM-FREE     VALUE SPACE.
                           88  SM-TAKEN    VALUE "T".
                           88  SM-RESERVED VALUE "R" "Q".
                       20  SM-ARTICLE  PIC X(13).
                       20  SM-ARTICLE-EAN REDEFINES SM-ARTICLE.
                           25  SM-EAN-COUNTRY  PIC 9(03).
                               88  SM-EAN-GERMANY VALUE 400 THRU 440.
                               88  SM-EAN-IN-HOUSE VALUE 20 THRU 29
                                                   200 THRU 299.
                           25  SM-EAN-MAKER    PIC 9(04).
                           25  SM-EAN-ARTICLE  PIC 9(05).
                           25  SM-EAN-CHECK    PIC 9(01).
                       20  SM-ON-HAND  PIC S9(07) COMP-3.
                       20  SM-HELD     PIC S9(07) COMP-3.
                       20  SM-BEST-BEFORE  PIC 9(06) COMP-6.
                       20  SM-LEVEL    PIC 9(02) COMP-X
                                       OCCURS 4 TIMES.

      * One movement as it comes from the scanners; its body has three
      * forms.
       01  MOVEMENT.
           05  MV-HEAD.
               10  MV-KIND             PIC X(02).
                   88  MV-RECEIPT      VALUE "RC".
                   88  MV-PUT-AWAY     VALUE "PA" "PB".
                   88  MV-PICK         VALUE "PK".
                   88  MV-COUNT        VALUE "CN" "CX".
                   88  MV-VALID        VALUE "RC" "PA" "PB" "PK"
                                             "CN" "CX".
               10  MV-SCANNER          PIC 9(05).
               10  MV-STAMP.
                   15  MV-DATE         PIC 9(08).
                   15  MV-TIME         PIC 9(06).
                       88  MV-NIGHT-SHIFT  VALUE 220000 THRU 235959
                                                 0 THRU 55959.
           05  MV-BODY                 PIC X(64).
           05  MV-RECEIPT-BODY REDEFINES MV-BODY.
               10  MV-RC-ORDER-NO      PIC 9(10).
               10  MV-RC-SUPPLIER      PIC 9(08).
               10  MV-RC-ARTICLE       PIC X(13).
               10  MV-RC-QTY           PIC 9(07).
               10  MV-RC-LOT           PIC X(20).
               10  FILLER              PIC X(06).
           05  MV-PICK-BODY REDEFINES MV-BODY.
               10  MV-PK-WAVE          PIC 9(06).
               10  MV-PK-SLOT.
                   15  MV-PK-ZONE      PIC X(02).
                   15  MV-PK-AISLE     PIC 9(02).
                   15  MV-PK-BAY       PIC 9(03).
               10  MV-PK-SLOT-KEY REDEFINES MV-PK-SLOT PIC X(07).
               10  MV-PK-ARTICLE       PIC X(13).
               10  MV-PK-QTY-ASKED     PIC 9(07).
               10  MV-PK-QTY-TAKEN     PIC 9(07).
               10  FILLER              PIC X(24).
           05  MV-COUNT-BODY REDEFINES MV-BODY.
               10  MV-CN-ENTRY         OCCURS 4 TIMES.
                   15  MV-CN-BAY       PIC 9(03).
                   15  MV-CN-QTY       PIC S9(07)
                                       SIGN TRAILING SEPARATE.
                   15  MV-CN-REASON    PIC X(02).
                       88  MV-CN-BREAKAGE  VALUE "BR".
                       88  MV-CN-THEFT     VALUE "TH".
               10  FILLER              PIC X(12).
           05  MV-RESULT               PIC 9(02).
               88  MV-DONE             VALUE 0.
               88  MV-WARNED           VALUE 1 THRU 9.
               88  MV-REFUSED          VALUE 10 THRU 49 90 THRU 99.

      * A pick list: as many lines as the wave needs.
       01  PICK-LIST.
           05  PL-HEADER.
               10  PL-WAVE             PIC 9(06).
               10  PL-PICKER           PIC X(08).
               10  PL-PRIORITY         PIC 9(01).
                   88  PL-EXPRESS      VALUE 1.
                   88  PL-NORMAL       VALUE 2 THRU 5.
               10  PL-LINE-COUNT       PIC 9(03).
                   88  PL-EMPTY        VALUE 0.
                   88  PL-FULL         VALUE 200.
               10  PL-WEIGHT           PIC 9(05)V999.
           05  PL-LINE                 OCCURS 0 TO 200 TIMES
               DEPENDING ON PL-LINE-COUNT
               INDEXED BY LINE-IX.
               10  PL-SLOT.
                   15  PL-ZONE         PIC X(02).
                   15  PL-AISLE        PIC 9(02).
                   15  PL-BAY          PIC 9(03).
               10  PL-ARTICLE          PIC X(13).
               10  PL-TEXT             PIC X(30).
               10  PL-QTY              PIC 9(05).
               10  PL-UNIT             PIC X(03).
                   88  PL-PIECES       VALUE "PCE".
                   88  PL-CARTONS      VALUE "CTN".
                   88  PL-LITRES       VALUE "LTR".
               10  PL-SERIAL           PIC X(10) OCCURS 3 TIMES.

      * Transport orders wait here; their count stands in a record of
      * its own that the queue handler shares.
       01  QUEUE-CONTROL.
           05  QC-LOCK                 PIC X(01).
           05  QC-DEPTHS.
               10  QC-INBOUND          PIC 9(04) COMP.
               10  QC-OUTBOUND         PIC 9(04) COMP.
       01  TRANSPORT-QUEUE.
           05  TQ-NAME                 PIC X(08).
           05  TQ-ORDER OCCURS 1 TO 500 TIMES
               DEPENDING ON QC-OUTBOUND OF QC-DEPTHS.
               10  TQ-TRUCK            PIC 9(03) COMP SYNC.
               10  TQ-GATE             PIC X(01).
                   88  TQ-GATE-NORTH   VALUE "A" THRU "F".
                   88  TQ-GATE-SOUTH   VALUE "G" THRU "M".
               10  TQ-PALLETS          PIC 9(07) COMP SYNC.
               10  TQ-WEIGHT           PIC 9(07) COMP-3.
               10  TQ-DEST             PIC X(02).

      * Distances between zones in metres, by zone number.
       01  DISTANCES.
           05  DI-FROM                 OCCURS 6 TIMES.
               10  DI-TO               PIC 9(04) COMP
                                       OCCURS 6 TIMES.
       01  DISTANCE-VALUES REDEFINES DISTANCES.
           05  DV-METRES               PIC 9(04) COMP
                                       OCCURS 36 TIMES.
       01  WORK-FIELDS.
           05  WK-FOUND                PIC X(01).
               88  WK-SLOT-FOUND       VALUE "Y".
           05  WK-QTY-LEFT             PIC S9(07) COMP-3.
           05  WK-TAKE                 PIC S9(07) COMP-3.
           05  WK-ARTICLE              PIC X(13).
           05  WK-PALLETS              PIC 9(04).
           05  WK-DAYS-IN-STOCK        OCCURS 7 TIMES.
               10  WK-DAY-NAME         PIC X(02).
               10  WK-DAY-PICKS        PIC 9(05) OCCURS 24 TIMES.

      * What callers of the entry points below hand over.
       LINKAGE SECTION.
       01  LK-HOUSE                    PIC X(04).
           88  LK-HOUSE-KNOWN          VALUE "W001"
                                             "X000" THRU "X999".
       01  LK-MAP.
           05  LM-AS-OF                PIC 9(08).
           05  LM-ZONE                 OCCURS 6 TIMES.
               10  LM-ZONE-CODE        PIC X(02).
                   88  LM-ZONE-COLD    VALUE "C1" "C2".
               10  LM-ZONE-TEMP        PIC S9(02)V9
                                       SIGN LEADING SEPARATE.
               10  LM-AISLE            OCCURS 8 TIMES.
                   15  LM-AISLE-NO     PIC 9(02).
                   15  LM-BAY          OCCURS 20 TIMES.
                       20  LM-BAY-NO   PIC 9(03).
                       20  LM-STATE    PIC X(01).
                           88  LM-FREE     VALUE SPACE.
                           88  LM-TAKEN    VALUE "T".
                       20  LM-ARTICLE  PIC X(13).
                       20  LM-ON-HAND  PIC S9(07) COMP-3.
                       20  LM-LEVEL    PIC 9(02) COMP-X
                                       OCCURS 4 TIMES.
       01  LK-TASK.
           05  LT-KIND                 PIC X(02).
               88  LT-RECEIPT          VALUE "RC".
               88  LT-PICK             VALUE "PK".
           05  LT-STAMP                PIC 9(14).
           05  LT-BODY                 PIC X(40).
           05  LT-RECEIPT-BODY REDEFINES LT-BODY.
               10  LT-RC-ORDER-NO      PIC 9(10).
               10  LT-RC-ARTICLE       PIC X(13).
               10  LT-RC-QTY           PIC 9(07).
               10  FILLER              PIC X(10).
           05  LT-PICK-BODY REDEFINES LT-BODY.
               10  LT-PK-WAVE          PIC 9(06).
               10  LT-PK-ARTICLE       PIC X(13).
               10  LT-PK-QTY-ASKED     PIC 9(07).
               10  LT-PK-QTY-TAKEN     PIC 9(07).
               10  FILLER              PIC X(07).
       01  LK-ANSWER.
           05  LA-CODE                 PIC 9(02).
               88  LA-DONE             VALUE 0.
               88  LA-REFUSED          VALUE 10 THRU 49 90 THRU 99.
           05  LA-LINE-COUNT           PIC 9(03).
           05  LA-LINE                 OCCURS 0 TO 200 TIMES
               DEPENDING ON LA-LINE-COUNT.
               10  LA-BAY              PIC 9(03).
               10  LA-QTY              PIC 9(05).

       PROCEDURE DIVISION.
       MAIN-LINE.
           MOVE "W001" TO SM-HOUSE
           ACCEPT SM-AS-OF FROM DATE YYYYMMDD
           PERFORM CLEAR-MAP
           ACCEPT MOVEMENT
           INITIALIZE WORK-FIELDS
           EVALUATE TRUE
               WHEN MV-RECEIPT   PERFORM PUT-IN-STOCK
               WHEN MV-PICK      PERFORM BUILD-PICK-LIST
               WHEN MV-COUNT     PERFORM CORRECT-STOCK
               WHEN OTHER        MOVE 10 TO MV-RESULT
           END-EVALUATE
           DISPLAY MV-HEAD " " MV-RESULT
           STOP RUN.

       CLEAR-MAP.
           PERFORM VARYING ZONE-IX FROM 1 BY 1
                   UNTIL ZONE-IX > WS-ZONE-MAX
               PERFORM VARYING AISLE-IX FROM 1 BY 1
                       UNTIL AISLE-IX > 8
                   SET SM-AISLE-NO (ZONE-IX AISLE-IX) TO AISLE-IX
                   SET SM-TWO-WAY (ZONE-IX AISLE-IX) TO TRUE
                   PERFORM VARYING BAY-IX FROM 1 BY 1
                           UNTIL BAY-IX > 20
                       INITIALIZE SM-BAY (ZONE-IX AISLE-IX BAY-IX)
                       SET SM-BAY-NO (ZONE-IX AISLE-IX BAY-IX)
                           TO BAY-IX
                       SET SM-FREE (ZONE-IX AISLE-IX BAY-IX) TO TRUE
                   END-PERFORM
               END-PERFORM
           END-PERFORM.

      * The first free bay takes the goods.
       PUT-IN-STOCK.
           MOVE "N" TO WK-FOUND
           PERFORM VARYING ZONE-IX FROM 1 BY 1
                   UNTIL ZONE-IX > WS-ZONE-MAX OR WK-SLOT-FOUND
               PERFORM VARYING AISLE-IX FROM 1 BY 1
                       UNTIL AISLE-IX > 8 OR WK-SLOT-FOUND
                   SET BAY-IX TO 1
                   SEARCH SM-BAY
                       WHEN SM-FREE (ZONE-IX AISLE-IX BAY-IX)
                           PERFORM FILL-BAY
                   END-SEARCH
               END-PERFORM
           END-PERFORM
           IF NOT WK-SLOT-FOUND
               MOVE 90 TO MV-RESULT
           END-IF.

       FILL-BAY.
           SET WK-SLOT-FOUND TO TRUE
           SET SM-TAKEN (ZONE-IX AISLE-IX BAY-IX) TO TRUE
           MOVE MV-RC-ARTICLE TO SM-ARTICLE (ZONE-IX AISLE-IX BAY-IX)
           MOVE MV-RC-QTY TO SM-ON-HAND (ZONE-IX AISLE-IX BAY-IX)
           MOVE 0 TO MV-RESULT.

       BUILD-PICK-LIST.
           MOVE MV-PK-WAVE TO PL-WAVE
           MOVE MV-PK-ARTICLE TO WK-ARTICLE
           MOVE MV-PK-QTY-ASKED TO WK-QTY-LEFT
           MOVE 0 TO PL-LINE-COUNT
           PERFORM VARYING ZONE-IX FROM 1 BY 1
                   UNTIL ZONE-IX > WS-ZONE-MAX
               PERFORM VARYING AISLE-IX FROM 1 BY 1
                       UNTIL AISLE-IX > 8
                   PERFORM VARYING BAY-IX FROM 1 BY 1
                           UNTIL BAY-IX > 20
                       IF SM-ARTICLE (ZONE-IX AISLE-IX BAY-IX)
                           = WK-ARTICLE AND WK-QTY-LEFT > 0
                           AND SM-ON-HAND (ZONE-IX AISLE-IX BAY-IX) > 0
                           PERFORM TAKE-FROM-BAY
                       END-IF
                   END-PERFORM
               END-PERFORM
           END-PERFORM
           IF WK-QTY-LEFT > 0
               MOVE 1 TO MV-RESULT
           ELSE
               MOVE 0 TO MV-RESULT
           END-IF.

       TAKE-FROM-BAY.
           MOVE SM-ON-HAND (ZONE-IX AISLE-IX BAY-IX) TO WK-TAKE
           IF WK-TAKE > WK-QTY-LEFT
               MOVE WK-QTY-LEFT TO WK-TAKE
           END-IF
           IF PL-LINE-COUNT < WS-LINE-MAX
               ADD 1 TO PL-LINE-COUNT
               SET LINE-IX TO PL-LINE-COUNT
               MOVE SM-ZONE-CODE (ZONE-IX) TO PL-ZONE (LINE-IX)
               MOVE SM-AISLE-NO (ZONE-IX AISLE-IX)
                   TO PL-AISLE (LINE-IX)
               MOVE SM-BAY-NO (ZONE-IX AISLE-IX BAY-IX)
                   TO PL-BAY (LINE-IX)
               MOVE WK-ARTICLE TO PL-ARTICLE (LINE-IX)
               MOVE WK-TAKE TO PL-QTY (LINE-IX)
               SET PL-PIECES (LINE-IX) TO TRUE
               SUBTRACT WK-TAKE FROM WK-QTY-LEFT
               SUBTRACT WK-TAKE
                   FROM SM-ON-HAND (ZONE-IX AISLE-IX BAY-IX)
           END-IF.

       CORRECT-STOCK.
           SET ZONE-IX AISLE-IX TO 1
           SET BAY-IX TO MV-CN-BAY (1)
           ADD MV-CN-QTY (1)
               TO SM-ON-HAND (ZONE-IX AISLE-IX BAY-IX)
           MOVE 0 TO MV-RESULT.

      * The map of the house, for screens in the office.
       GIVE-MAP.
           ENTRY "WHSMAP" USING LK-HOUSE LK-MAP
           IF NOT LK-HOUSE-KNOWN
               GOBACK
           END-IF
           MOVE SM-AS-OF TO LM-AS-OF
           PERFORM VARYING ZONE-IX FROM 1 BY 1
                   UNTIL ZONE-IX > WS-ZONE-MAX
               MOVE SM-ZONE-CODE (ZONE-IX) TO LM-ZONE-CODE (ZONE-IX)
               MOVE SM-ZONE-TEMP (ZONE-IX) TO LM-ZONE-TEMP (ZONE-IX)
               PERFORM VARYING AISLE-IX FROM 1 BY 1
                       UNTIL AISLE-IX > 8
                   PERFORM VARYING BAY-IX FROM 1 BY 1
                           UNTIL BAY-IX > 20
                       MOVE SM-STATE (ZONE-IX AISLE-IX BAY-IX)
                           TO LM-STATE (ZONE-IX AISLE-IX BAY-IX)
                       MOVE SM-ARTICLE (ZONE-IX AISLE-IX BAY-IX)
                           TO LM-ARTICLE (ZONE-IX AISLE-IX BAY-IX)
                       MOVE SM-ON-HAND (ZONE-IX AISLE-IX BAY-IX)
                           TO LM-ON-HAND (ZONE-IX AISLE-IX BAY-IX)
                   END-PERFORM
               END-PERFORM
           END-PERFORM
           GOBACK.

      * One receipt or pick, as a scanner or another system asks.
       DO-TASK.
           ENTRY "WHSTASK" USING LK-TASK LK-ANSWER
           MOVE 0 TO LA-LINE-COUNT
           EVALUATE TRUE
               WHEN LT-RECEIPT
                   MOVE LT-RC-ARTICLE TO MV-RC-ARTICLE
                   MOVE LT-RC-QTY TO MV-RC-QTY
                   PERFORM PUT-IN-STOCK
               WHEN LT-PICK
                   MOVE LT-PK-WAVE TO MV-PK-WAVE
                   MOVE LT-PK-ARTICLE TO MV-PK-ARTICLE
                   MOVE LT-PK-QTY-ASKED TO MV-PK-QTY-ASKED
                   PERFORM BUILD-PICK-LIST
                   PERFORM VARYING LINE-IX FROM 1 BY 1
                           UNTIL LINE-IX > PL-LINE-COUNT
                       ADD 1 TO LA-LINE-COUNT
                       MOVE PL-BAY (LINE-IX) TO LA-BAY (LINE-IX)
                       MOVE PL-QTY (LINE-IX) TO LA-QTY (LINE-IX)
                   END-PERFORM
               WHEN OTHER
                   MOVE 10 TO MV-RESULT
           END-EVALUATE
           MOVE MV-RESULT TO LA-CODE
           GOBACK.
