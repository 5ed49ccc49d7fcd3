      *****************************************************************
      * MOTPREM  Motor insurance: premium service module.
      *
      * Called by the quotation screens and by the renewal batch.
      *   MOTPREM   prices one risk completely
      *   MOTPDISC  the no-claims discount for a class
      *   MOTPTAX   insurance tax on an amount
      *   MOTPINST  the instalment plan of a priced risk
      *****************************************************************
       IDENTIFICATION DIVISION.
       PROGRAM-ID. MOTPREM.
       ENVIRONMENT DIVISION.
       CONFIGURATION SECTION.
       SPECIAL-NAMES.
           CALL-CONVENTION 8 IS STATIC-LINK.

       DATA DIVISION.
       WORKING-STORAGE SECTION.
       77  WS-MODULE-VERSION           PIC X(08) VALUE "04.17.02".
       77  WS-CALL-COUNT               PIC 9(09) COMP-5 VALUE 0.
       01  WS-BASE-RATES.
           05  WS-BASE-RATE            OCCURS 9 TIMES
                                       INDEXED BY WS-RATE-IX.
               10  WS-BR-GROUP         PIC 9(02).
               10  WS-BR-THIRD-PARTY   PIC S9(05)V99 COMP-3.
               10  WS-BR-PART-COVER    PIC S9(05)V99 COMP-3.
               10  WS-BR-FULL-COVER    PIC S9(05)V99 COMP-3.
       01  WS-DISCOUNT-TABLE.
           05  WS-DISCOUNT             PIC V9(04) COMP-6
                                       OCCURS 36 TIMES.
       01  WS-WORK.
           05  WS-GROSS                PIC S9(09)V99 COMP-3.
           05  WS-NET                  PIC S9(09)V99 COMP-3.
           05  WS-FACTOR               COMP-1.
           05  WS-TAX-PCT              PIC 9(02)V9(03) COMP-3.
           05  WS-REST                 PIC S9(09)V99 COMP-3.
           05  WS-SUB                  PIC S9(04) COMP.

       LINKAGE SECTION.
      * The risk to price.
       01  LK-REQUEST.
           05  LK-REQ-VERSION          PIC 9(04) COMP-X.
           05  LK-REQ-POLICY-NO        PIC X(12).
           05  LK-REQ-POLICY-PARTS REDEFINES LK-REQ-POLICY-NO.
               10  LK-REQ-COMPANY      PIC X(02).
                   88  LK-OWN-COMPANY  VALUE "MI" "MD".
               10  LK-REQ-SERIAL       PIC 9(08).
               10  LK-REQ-SUFFIX       PIC X(02).
           05  LK-REQ-START-DATE.
               10  LK-REQ-START-CC     PIC 9(02).
               10  LK-REQ-START-YY     PIC 9(02).
               10  LK-REQ-START-MM     PIC 9(02).
                   88  LK-START-VALID  VALUE 1 THRU 12.
               10  LK-REQ-START-DD     PIC 9(02).
           05  LK-REQ-COVER            PIC 9(01).
               88  LK-THIRD-PARTY      VALUE 1.
               88  LK-PART-COVER       VALUE 2.
               88  LK-FULL-COVER       VALUE 3.
               88  LK-COVER-VALID      VALUE 1 THRU 3.
           05  LK-REQ-PAYMENT          PIC X(01).
               88  LK-PAY-YEARLY       VALUE "Y".
               88  LK-PAY-HALF-YEARLY  VALUE "H".
               88  LK-PAY-QUARTERLY    VALUE "Q".
               88  LK-PAY-MONTHLY      VALUE "M".
           05  LK-REQ-VEHICLE.
               10  LK-VEH-MAKE         PIC X(20).
               10  LK-VEH-MODEL        PIC X(30).
               10  LK-VEH-TYPE-KEY     PIC 9(07).
               10  LK-VEH-FIRST-REG    PIC 9(08).
               10  LK-VEH-POWER-KW     PIC 9(04) COMP.
               10  LK-VEH-CCM          PIC 9(05) COMP.
               10  LK-VEH-FUEL         PIC X(01).
                   88  LK-FUEL-PETROL  VALUE "P".
                   88  LK-FUEL-DIESEL  VALUE "D".
                   88  LK-FUEL-GAS     VALUE "G" "L" "C".
                   88  LK-FUEL-OTHER   VALUE "A" THRU "B"
                                             "E" THRU "F"
                                             SPACES.
               10  LK-VEH-NEW-VALUE    PIC 9(07)V99.
               10  LK-VEH-KM-YEAR      PIC 9(03)PPP.
           05  LK-REQ-REGION.
               10  LK-REG-POSTCODE     PIC X(10) JUSTIFIED RIGHT.
               10  LK-REG-PLACE        PIC X(30).
                   88  LK-REG-CITY     VALUE "München" "Köln"
                                             "Düsseldorf".
               10  LK-REG-CLASS        PIC 9(02).
                   88  LK-REG-CHEAP    VALUE 1 THRU 4.
                   88  LK-REG-DEAR     VALUE 9 THRU 12.
           05  LK-REQ-DRIVER-COUNT     PIC 9(02).
               88  LK-ANY-DRIVER       VALUE ZERO.
           05  LK-REQ-DRIVER           OCCURS 1 TO 6 TIMES
               DEPENDING ON LK-REQ-DRIVER-COUNT.
               10  LK-DRV-NAME.
                   15  LK-DRV-SURNAME  PIC X(30).
                   15  LK-DRV-GIVEN    PIC X(20).
               10  LK-DRV-BORN         PIC 9(08).
               10  LK-DRV-LICENCE      PIC 9(08).
               10  LK-DRV-NCD-CLASS    PIC S9(02).
                   88  LK-NCD-MALUS    VALUE -2 -1.
                   88  LK-NCD-NORMAL   VALUE 0 THRU 35.
               10  LK-DRV-CLAIM        OCCURS 3 TIMES.
                   15  LK-CLM-YEAR     PIC 9(04).
                   15  LK-CLM-AMOUNT   PIC S9(07)V99 SIGN LEADING.
                   15  LK-CLM-AT-FAULT PIC X(01).
                       88  LK-CLM-OWN-FAULT VALUE "Y".

      * What the module answers.
       01  LK-RESULT.
           05  LK-RES-STATUS           PIC S9(04) COMP.
               88  LK-RES-OK           VALUE 0.
               88  LK-RES-WARNING      VALUE 1 THRU 99.
               88  LK-RES-REFUSED      VALUE -999 THRU -1.
           05  LK-RES-MESSAGE          PIC X(60).
           05  LK-RES-PREMIUMS.
               10  LK-RES-THIRD-PARTY  PIC S9(07)V99 COMP-3.
               10  LK-RES-PART-COVER   PIC S9(07)V99 COMP-3.
               10  LK-RES-FULL-COVER   PIC S9(07)V99 COMP-3.
               10  LK-RES-EXTRAS       PIC S9(07)V99 COMP-3.
           05  LK-RES-PREMIUM-TABLE REDEFINES LK-RES-PREMIUMS.
               10  LK-RES-PREMIUM      PIC S9(07)V99 COMP-3
                                       OCCURS 4 TIMES.
           05  LK-RES-NET              PIC S9(07)V99 COMP-3.
           05  LK-RES-TAX              PIC S9(07)V99 COMP-3.
           05  LK-RES-GROSS            PIC S9(07)V99 COMP-3.
           05  LK-RES-GROSS-TEXT       PIC $$,$$$,$$9.99-.
           66  LK-RES-TOTALS           RENAMES LK-RES-NET
                                       THRU LK-RES-GROSS.
           66  LK-RES-CODE             RENAMES LK-RES-STATUS.

      * The instalment plan, made by MOTPINST.
       01  LK-PLAN.
           05  LK-PLAN-HEAD.
               10  LK-PLAN-POLICY-NO   PIC X(12).
               10  LK-PLAN-USED        PIC 9(02).
           05  LK-PLAN-ENTRY           OCCURS 1 TO 12 TIMES
               DEPENDING ON LK-PLAN-USED OF LK-PLAN-HEAD.
               10  LK-PLAN-DUE         PIC 9(08).
               10  LK-PLAN-AMOUNT      PIC S9(07)V99
                                       SIGN IS TRAILING.
               10  LK-PLAN-PRINT       PIC Z(6)9.99 BLANK WHEN ZERO.
               10  LK-PLAN-STATE       PIC X(01).
                   88  LK-PLAN-OPEN    VALUE SPACE.
                   88  LK-PLAN-PAID    VALUE "P".

       01  LK-NCD-CLASS                PIC S9(04) COMP-5.
           88  LK-NCD-CLASS-OK         VALUE 0 THRU 35.
       01  LK-DISCOUNT-PCT             PIC S9(03)V99 COMP-3.
       01  LK-NET-AMOUNT               PIC S9(09) COMP-5.
       01  LK-TAX-AMOUNT               PIC S9(09) COMP-5.
       01  LK-RETURN-CODE              PIC S9(09) COMP-5.

       PROCEDURE DIVISION USING BY REFERENCE LK-REQUEST LK-RESULT
                          RETURNING LK-RETURN-CODE.
       PRICE-RISK.
           ADD 1 TO WS-CALL-COUNT
           MOVE 0 TO LK-RETURN-CODE
           MOVE SPACES TO LK-RES-MESSAGE
           IF NOT LK-COVER-VALID
               MOVE -1 TO LK-RES-STATUS
               MOVE "COVER NOT KNOWN" TO LK-RES-MESSAGE
               MOVE 8 TO LK-RETURN-CODE
               GOBACK
           END-IF
           PERFORM FIND-BASE-RATE
           PERFORM APPLY-CLAIMS
           COMPUTE LK-RES-TAX ROUNDED = LK-RES-NET * 0.19
           ADD LK-RES-NET LK-RES-TAX GIVING LK-RES-GROSS
           MOVE LK-RES-GROSS TO LK-RES-GROSS-TEXT
           MOVE 0 TO LK-RES-STATUS
           GOBACK.

       NO-CLAIMS-DISCOUNT.
           ENTRY "MOTPDISC" USING BY VALUE LK-NCD-CLASS
                                  BY REFERENCE LK-DISCOUNT-PCT.
           MOVE 0 TO LK-DISCOUNT-PCT
           IF LK-NCD-CLASS-OK
               COMPUTE WS-SUB = LK-NCD-CLASS + 1
               COMPUTE LK-DISCOUNT-PCT = WS-DISCOUNT (WS-SUB) * 100
           END-IF
           GOBACK.

      * Amounts in cents, so that other languages can call it too.
       INSURANCE-TAX.
           ENTRY STATIC-LINK "MOTPTAX"
               USING BY VALUE LK-NET-AMOUNT
                     BY REFERENCE LK-TAX-AMOUNT.
           COMPUTE LK-TAX-AMOUNT ROUNDED = LK-NET-AMOUNT * 0.19
           GOBACK.

       INSTALMENT-PLAN.
           ENTRY "MOTPINST" USING LK-REQUEST LK-RESULT LK-PLAN.
           MOVE LK-REQ-POLICY-NO TO LK-PLAN-POLICY-NO
           EVALUATE TRUE
               WHEN LK-PAY-MONTHLY     MOVE 12 TO LK-PLAN-USED
               WHEN LK-PAY-QUARTERLY   MOVE 4 TO LK-PLAN-USED
               WHEN LK-PAY-HALF-YEARLY MOVE 2 TO LK-PLAN-USED
               WHEN OTHER              MOVE 1 TO LK-PLAN-USED
           END-EVALUATE
           MOVE LK-RES-GROSS TO WS-REST
           PERFORM VARYING WS-SUB FROM 1 BY 1
                   UNTIL WS-SUB > LK-PLAN-USED
               COMPUTE LK-PLAN-AMOUNT (WS-SUB) ROUNDED =
                   LK-RES-GROSS / LK-PLAN-USED
               MOVE LK-PLAN-AMOUNT (WS-SUB) TO LK-PLAN-PRINT (WS-SUB)
               SUBTRACT LK-PLAN-AMOUNT (WS-SUB) FROM WS-REST
               SET LK-PLAN-OPEN (WS-SUB) TO TRUE
           END-PERFORM
           ADD WS-REST TO LK-PLAN-AMOUNT (1)
           GOBACK.

       FIND-BASE-RATE.
           SET WS-RATE-IX TO 1
           SEARCH WS-BASE-RATE
               AT END MOVE 0 TO WS-GROSS
               WHEN WS-BR-GROUP (WS-RATE-IX) = LK-REG-CLASS
                   EVALUATE TRUE
                       WHEN LK-THIRD-PARTY
                           MOVE WS-BR-THIRD-PARTY (WS-RATE-IX)
                               TO WS-GROSS
                       WHEN LK-PART-COVER
                           MOVE WS-BR-PART-COVER (WS-RATE-IX)
                               TO WS-GROSS
                       WHEN OTHER
                           MOVE WS-BR-FULL-COVER (WS-RATE-IX)
                               TO WS-GROSS
                   END-EVALUATE
           END-SEARCH
           MOVE WS-GROSS TO LK-RES-NET.

      * Every claim of the main driver's own fault adds a tenth.
       APPLY-CLAIMS.
           MOVE 1 TO WS-FACTOR
           PERFORM VARYING WS-SUB FROM 1 BY 1 UNTIL WS-SUB > 3
               IF LK-CLM-OWN-FAULT (1, WS-SUB)
                   ADD 0.1 TO WS-FACTOR
               END-IF
           END-PERFORM
           COMPUTE LK-RES-NET ROUNDED = LK-RES-NET * WS-FACTOR.
